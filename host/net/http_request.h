// An HTTP request and the answer to it.
#pragma once

#include "net/header_list.h"
#include "net/line.h"
#include "net/remote_file.h"
#include "net/transfer.h"

#include <optional>
#include <string>
#include <string_view>

namespace gpi {

class HttpRequest : public RemoteFile {
  public:
    /// What is asked for; each part checked already.
    struct Ask {
        std::string verb = "GET";
        std::string url;
        std::string version;  ///< empty for the best that both sides speak
        std::string referrer; ///< empty for none
        uint32_t flags = 0;   ///< G_NET_RELOAD, G_NET_NO_REDIRECT, G_NET_KEEP_CONNECTION
    };

    HttpRequest(std::shared_ptr<Node> parent, Options options, std::shared_ptr<LinePool> lines,
                Ask ask);

    // All throw NetError; G_NET_STATE out of their order.

    /// @param flags as for GNetHttpAddRequestHeaders()
    void addHeaders(const std::string& headers, uint32_t flags);

    /// Sends it whole and waits for the head of the answer. Without a body, sends its head alone;
    /// write() then sends the body, until endBody(). It may be sent again when that fails.
    ///
    /// @param headers more of them
    void send(const std::string& headers, std::optional<std::string_view> body);
    void endBody();

    using RemoteFile::begin;
    void begin(std::shared_ptr<const Kept> kept) override;

    const HttpHead& answer() const;
    std::string url() const override;

  protected:
    std::unique_ptr<Source> reopen(int64_t position) override;
    HttpHead headToKeep() const override;

  private:
    enum class State { Prepared, BodyOpen, Answered };

    std::unique_ptr<Transfer> prepare(const std::shared_ptr<HttpHead>& head,
                                      std::vector<std::string> headers) const;
    std::unique_ptr<Transfer> prepareToSend(std::vector<std::string> headers);
    void sendWhole(std::string_view body);
    void sendHead();
    void chooseVerb(Transfer& transfer, bool withBody) const;
    void awaitAnswer(std::unique_ptr<Transfer> transfer);
    void requireState(State state) const { require(state_ == state, G_NET_STATE); }

    const std::shared_ptr<LinePool> lines_;
    const Ask ask_;
    State state_ = State::Prepared;
    HeaderList headers_;
    std::shared_ptr<HttpHead> head_;
    std::string whereFrom_;
};

/// The number that libcurl has for a version of the protocol. @throws NetError G_NET_ARGUMENT
long curlHttpVersion(const std::string& version);

} // namespace gpi
