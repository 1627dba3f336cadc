// What begins with GNetOpen(), and HTTP servers that a program named.
#pragma once

#include "net/line.h"
#include "net/node.h"
#include "net/url.h"

namespace gpi {

/// Its lines serve all HTTP requests below it, so that a connection that one of them left open is
/// there for the next.
class Session : public Node {
  public:
    explicit Session(Options options)
        : Node(G_NET_KIND_SESSION, nullptr, std::move(options)),
          lines_(std::make_shared<LinePool>(kMostLines)) {}

    const std::shared_ptr<LinePool>& lines() const { return lines_; }

  private:
    static constexpr size_t kMostLines = 1024; // as many as there can be handles

    std::shared_ptr<LinePool> lines_;
};

class HttpConnection : public Node {
  public:
    HttpConnection(const std::shared_ptr<Session>& session, Options options, const Url& server)
        : Node(G_NET_KIND_CONNECTION, session, std::move(options)),
          lines_(session->lines()),
          server_(server.text()) {}

    const std::shared_ptr<LinePool>& lines() const { return lines_; }

    /// "scheme://host:port/"
    std::string url() const override { return server_; }

  private:
    std::shared_ptr<LinePool> lines_;
    std::string server_;
};

} // namespace gpi
