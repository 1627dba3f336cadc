// A connection to an FTP server.
#pragma once

#include "net/line.h"
#include "net/node.h"
#include "net/transfer.h"
#include "net/url.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace gpi {

/// Does one thing at a time: while a file is open everything else throws G_NET_STATE. All throw
/// NetError. A connection that the server closed is made anew.
class FtpConnection : public Node {
  public:
    /// @param active the server opens the data connections
    FtpConnection(std::shared_ptr<Node> parent, Options options, const Url& server, bool active);

    /// Connects and logs in.
    void connect();

    /// The current folder; paths without a slash at their begin count from it.
    const std::string& folder() const { return folder_; }
    void changeFolder(const std::string& path);

    void remove(const std::string& path) { command({"DELE " + absolute(path)}); }
    void rename(const std::string& from, const std::string& to);
    void makeFolder(const std::string& path) { command({"MKD " + absolute(path)}); }
    void removeFolder(const std::string& path) { command({"RMD " + absolute(path)}); }

    // Each gives a transfer that the server has agreed to.

    /// @param ascii whether line ends are translated
    /// @param position in bytes
    std::unique_ptr<Transfer> openToRead(const std::string& path, bool ascii, int64_t position);
    std::unique_ptr<Transfer> openToWrite(const std::string& path, bool ascii);

    /// A transfer of something on the server, for callers that say themselves what it does.
    std::unique_ptr<Transfer> prepare(const std::string& url);

    std::string absolute(const std::string& path) const;
    std::string urlOf(const std::string& path) const;
    std::string url() const override { return server_; }

  private:
    /// Sends commands. @return the folder that the last reply named
    std::optional<std::string> command(const std::vector<std::string>& commands);
    std::unique_ptr<Transfer> prepareFile(const std::string& path, bool ascii);

    std::shared_ptr<LinePool> line_ = std::make_shared<LinePool>(1);
    const std::string server_;
    const bool active_;
    std::string folder_ = "/";
};

} // namespace gpi
