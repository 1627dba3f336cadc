// An FTP server for the time of a test.
#pragma once

#include "server_process.h"
#include "support/environment.h"

#include <memory>
#include <string>

namespace gpi::test {

/// Serves a folder as ftp_server.py says.
class FtpServer {
  public:
    static bool installed();

    FtpServer();

    int port() const { return port_.number(); }

    // What it serves.
    std::string path(const std::string& name) const { return folder_.path(name); }
    void serve(const std::string& name, const std::string& contents) const {
        folder_.write(name, contents);
    }
    /// Contents of a file, or "none".
    std::string stored(const std::string& name) const;

    ServerProcess& process() { return *process_; }

    /// What it did.
    std::string log() const;

  private:
    TemporaryFolder folder_;
    TemporaryFolder logs_;
    ListeningPort port_;
    std::unique_ptr<ServerProcess> process_;
};

} // namespace gpi::test
