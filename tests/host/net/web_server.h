// nginx for the time of a test.
#pragma once

#include "server_process.h"
#include "support/environment.h"

#include <memory>
#include <string>

namespace gpi::test {

/// Serves what web_server.conf says.
class WebServer {
  public:
    static bool installed();

    WebServer();

    /// A URL of a path, by HTTP or HTTPS.
    std::u16string url(const std::string& path) const { return at("http", ports_->plain, path); }
    std::u16string secureUrl(const std::string& path) const {
        return at("https", ports_->good, path);
    }

    // The same with certificates that are not good.
    std::u16string strangerUrl() const { return at("https", ports_->stranger, "/"); }
    std::u16string elsewhereUrl() const { return at("https", ports_->elsewhere, "/"); }
    std::u16string expiredUrl() const { return at("https", ports_->expired, "/"); }

    int port() const { return ports_->plain.number(); }
    int securePort() const { return ports_->good.number(); }

    /// What a client has to trust.
    std::string authorityFile() const { return folder_.path("authority.pem"); }

    /// Puts a file into what it serves.
    void serve(const std::string& name, const std::string& contents) const;

    ServerProcess& process() { return *process_; }

    /// What it had to say against its clients.
    std::string log() const;

  private:
    struct Ports {
        ListeningPort plain;
        ListeningPort good;
        ListeningPort stranger;
        ListeningPort elsewhere;
        ListeningPort expired;
    };

    static std::u16string at(const std::string& scheme, const ListeningPort& port,
                             const std::string& path);
    std::string configuration() const;
    bool start();

    TemporaryFolder folder_;
    std::unique_ptr<Ports> ports_;
    std::unique_ptr<ServerProcess> process_;
};

} // namespace gpi::test
