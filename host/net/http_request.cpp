#include "net/http_request.h"

#include <utility>

namespace gpi {
namespace {

bool isPlain(const std::string& url) {
    return url.starts_with("http:");
}

/// Whether the head of an answer is the last one: not if libcurl goes on by itself.
bool isLast(const HttpHead& head, const Options& options, uint32_t flags) {
    const int32_t status = head.status();
    const bool follows =
        (flags & G_NET_NO_REDIRECT) == 0 && status / 100 == 3 && head.field("Location").has_value();
    const bool triesAgain = !options.user.empty() && (status == 401 || status == 407);
    return status >= 200 && !follows && !triesAgain;
}

} // namespace

long curlHttpVersion(const std::string& version) {
    constexpr std::pair<std::string_view, long> kVersions[] = {
        {"", CURL_HTTP_VERSION_2TLS},
        {"HTTP/1.0", CURL_HTTP_VERSION_1_0},
        {"HTTP/1.1", CURL_HTTP_VERSION_1_1},
        {"HTTP/2", CURL_HTTP_VERSION_2_0},
    };
    for (const auto& [name, number] : kVersions) {
        if (name == version) {
            return number;
        }
    }
    throw NetError(G_NET_ARGUMENT);
}

HttpRequest::HttpRequest(std::shared_ptr<Node> parent, Options options,
                         std::shared_ptr<LinePool> lines, Ask ask)
    : RemoteFile(G_NET_KIND_REQUEST, std::move(parent), std::move(options), ask.url),
      lines_(std::move(lines)),
      ask_(std::move(ask)) {}

void HttpRequest::addHeaders(const std::string& headers, uint32_t flags) {
    requireState(State::Prepared);
    headers_.add(headers, flags);
}

std::unique_ptr<Transfer> HttpRequest::prepare(const std::shared_ptr<HttpHead>& head,
                                               std::vector<std::string> headers) const {
    const Options options = this->options();
    auto transfer = std::make_unique<Transfer>(lines_->take(), options);
    transfer->set(CURLOPT_URL, RemoteFile::url().c_str());
    transfer->set(CURLOPT_HTTP_VERSION, curlHttpVersion(ask_.version));
    transfer->set(CURLOPT_USERAGENT, options.agent.c_str());
    if (!ask_.referrer.empty()) {
        transfer->set(CURLOPT_REFERER, ask_.referrer.c_str());
    }
    transfer->set(CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    transfer->set(CURLOPT_FORBID_REUSE, (ask_.flags & G_NET_KEEP_CONNECTION) != 0 ? 0L : 1L);
    transfer->set(CURLOPT_FOLLOWLOCATION, (ask_.flags & G_NET_NO_REDIRECT) != 0 ? 0L : 1L);
    transfer->set(CURLOPT_MAXREDIRS, static_cast<long>(options.redirects));
    // What was asked for under protection does not come without it.
    transfer->set(CURLOPT_REDIR_PROTOCOLS_STR, isPlain(ask_.url) ? "http,https" : "https");
    transfer->set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_BASIC | CURLAUTH_DIGEST));
    const std::vector<std::string> chosen = headers_.forCurl();
    headers.insert(headers.end(), chosen.begin(), chosen.end());
    if ((ask_.flags & G_NET_RELOAD) != 0) {
        headers.insert(headers.end(), {"Cache-Control: no-cache", "Pragma: no-cache"});
    }
    transfer->set(CURLOPT_HTTPHEADER, headers);
    transfer->setListener([head, options, flags = ask_.flags](std::string_view line) {
        return head->take(line) && isLast(*head, options, flags);
    });
    return transfer;
}

void HttpRequest::chooseVerb(Transfer& transfer, bool withBody) const {
    std::string_view natural = "GET";
    if (withBody || ask_.verb == "POST") {
        natural = "POST";
        transfer.set(CURLOPT_POST, 1L);
    } else if (ask_.verb == "HEAD") {
        natural = "HEAD";
        transfer.set(CURLOPT_NOBODY, 1L);
    } else {
        transfer.set(CURLOPT_HTTPGET, 1L);
    }
    if (ask_.verb != natural) {
        transfer.set(CURLOPT_CUSTOMREQUEST, ask_.verb.c_str());
    }
}

std::unique_ptr<Transfer> HttpRequest::prepareToSend(std::vector<std::string> headers) {
    // libcurl would name a type by itself, and wait to be asked for a long body.
    headers.emplace_back("Expect:");
    if (!headers_.has("Content-Type")) {
        headers.emplace_back("Content-Type:");
    }
    head_ = std::make_shared<HttpHead>();
    return prepare(head_, std::move(headers));
}

void HttpRequest::send(const std::string& headers, std::optional<std::string_view> body) {
    requireState(State::Prepared);
    const HeaderList before = headers_;
    try {
        headers_.add(headers, G_HEADER_ADD);
        body.has_value() ? sendWhole(*body) : sendHead();
    } catch (const std::exception&) {
        headers_ = before; // for the next attempt
        throw;
    }
}

void HttpRequest::sendWhole(std::string_view body) {
    auto transfer = prepareToSend({});
    chooseVerb(*transfer, !body.empty());
    if (!body.empty() || ask_.verb == "POST") {
        transfer->set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
        transfer->set(CURLOPT_COPYPOSTFIELDS, body.empty() ? "" : body.data());
    }
    awaitAnswer(std::move(transfer));
}

void HttpRequest::sendHead() {
    require(ask_.version != "HTTP/1.0", G_NET_UNSUPPORTED);
    auto transfer = prepareToSend({"Transfer-Encoding: chunked"});
    chooseVerb(*transfer, true);
    transfer->set(CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t{-1});
    transfer->set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_BASIC)); // nothing is sent twice
    transfer->connect();
    sending = std::move(transfer);
    state_ = State::BodyOpen;
}

void HttpRequest::endBody() {
    requireState(State::BodyOpen);
    sending->endSending();
    state_ = State::Prepared; // once more, if the answer does not come
    awaitAnswer(std::move(sending));
}

void HttpRequest::awaitAnswer(std::unique_ptr<Transfer> transfer) {
    transfer->awaitContents();
    const char* const where = transfer->info<char*>(CURLINFO_EFFECTIVE_URL);
    whereFrom_ = where != nullptr ? where : "";
    const int64_t size =
        ask_.verb == "HEAD" ? 0 : transfer->info<curl_off_t>(CURLINFO_CONTENT_LENGTH_DOWNLOAD_T);
    state_ = State::Answered;
    begin(std::move(transfer), size);
}

void HttpRequest::begin(std::shared_ptr<const Kept> kept) {
    head_ = std::make_shared<HttpHead>(kept->head);
    state_ = State::Answered;
    RemoteFile::begin(std::move(kept));
}

const HttpHead& HttpRequest::answer() const {
    requireState(State::Answered);
    return *head_;
}

HttpHead HttpRequest::headToKeep() const {
    require(ask_.verb == "GET", G_NET_STATE);
    return answer();
}

std::string HttpRequest::url() const {
    return whereFrom_.empty() ? RemoteFile::url() : whereFrom_;
}

std::unique_ptr<Source> HttpRequest::reopen(int64_t position) {
    require(ask_.verb == "GET" && !headers_.has("Range"), G_NET_UNSUPPORTED);
    auto transfer = prepare(std::make_shared<HttpHead>(), {});
    transfer->set(CURLOPT_HTTPGET, 1L);
    transfer->set(CURLOPT_RESUME_FROM_LARGE, static_cast<curl_off_t>(position));
    transfer->awaitContents();
    return transfer;
}

} // namespace gpi
