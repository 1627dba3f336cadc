#include "net/transfer.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace gpi {
namespace {

// Bytes that are fetched ahead of their reader.
constexpr size_t kAhead = size_t{256} << 10;
// libcurl has time-outs of its own that are not told beforehand.
constexpr std::chrono::milliseconds kLongestWait{1000};

} // namespace

Transfer::Transfer(LinePool::Lease line, const Options& options)
    : line_(std::move(line)),
      easy_(curl_easy_init()),
      connectTimeout_(options.connectTimeout),
      idleTimeout_(options.idleTimeout) {
    if (easy_ == nullptr) {
        throw std::bad_alloc();
    }
    apply(options);
    set(CURLOPT_HEADERFUNCTION, &Transfer::lineCame);
    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_WRITEFUNCTION, &Transfer::bytesCame);
    set(CURLOPT_WRITEDATA, this);
    set(CURLOPT_READFUNCTION, &Transfer::bytesWanted);
    set(CURLOPT_READDATA, this);
    set(CURLOPT_PREREQFUNCTION, &Transfer::connected);
    set(CURLOPT_PREREQDATA, this);
}

Transfer::~Transfer() {
    if (started_) {
        curl_multi_remove_handle(line_->multi(), easy_.get());
    }
}

void Transfer::apply(const Options& options) {
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_QUICK_EXIT, 1L); // no waiting for a name server that was given up
    set(CURLOPT_PROTOCOLS_STR, "http,https,ftp");
    set(CURLOPT_PROXY, options.proxy.c_str()); // also none, whatever the environment says
    set(CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(options.connectTimeout));
    set(CURLOPT_SERVER_RESPONSE_TIMEOUT, long{options.idleTimeout} / 1000 + 1);
    set(CURLOPT_MAX_RECV_SPEED_LARGE, static_cast<curl_off_t>(options.rate));
    set(CURLOPT_MAX_SEND_SPEED_LARGE, static_cast<curl_off_t>(options.rate));
    if (!options.user.empty()) {
        set(CURLOPT_USERNAME, options.user.c_str());
        set(CURLOPT_PASSWORD, options.password.c_str());
    }
    std::string certificates;
    for (const auto& list : {options.shippedCertificates, options.ownCertificates}) {
        certificates += list != nullptr ? *list + '\n' : "";
    }
    if (!certificates.empty()) {
        curl_blob blob{certificates.data(), certificates.size(), CURL_BLOB_COPY};
        set(CURLOPT_CAINFO_BLOB, &blob); // beside CURLOPT_CAPATH, the system's
    }
}

void Transfer::set(CURLoption option, const std::vector<std::string>& list) {
    std::unique_ptr<curl_slist, FreeList> made;
    for (const std::string& text : list) {
        curl_slist* const longer = curl_slist_append(made.get(), text.c_str());
        if (longer == nullptr) {
            throw std::bad_alloc();
        }
        static_cast<void>(made.release()); // the longer list begins with it
        made.reset(longer);
    }
    set(option, made.get());
    lists_.push_back(std::move(made));
}

size_t Transfer::lineCame(char* bytes, size_t /*size*/, size_t count, void* self) {
    auto& transfer = *static_cast<Transfer*>(self);
    std::string_view line(bytes, count);
    while (line.ends_with('\n') || line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    transfer.connected_ = true;
    transfer.notice();
    try {
        if (!line.empty()) {
            transfer.lastLine_ = line;
        }
        if (transfer.listener_ != nullptr && transfer.listener_(line)) {
            transfer.contentsFollow_ = true;
        }
        return count;
    } catch (const std::exception&) {
        return 0; // which ends the transfer
    }
}

size_t Transfer::bytesCame(char* bytes, size_t /*size*/, size_t count, void* self) {
    auto& transfer = *static_cast<Transfer*>(self);
    transfer.contentsFollow_ = true;
    if (transfer.waiting() >= kAhead) {
        transfer.paused_ = true;
        return CURL_WRITEFUNC_PAUSE;
    }
    transfer.notice();
    try {
        transfer.received_.erase(0, std::exchange(transfer.taken_, 0));
        transfer.received_.append(bytes, count);
        return count;
    } catch (const std::exception&) {
        return 0;
    }
}

size_t Transfer::bytesWanted(char* bytes, size_t /*size*/, size_t count, void* self) {
    auto& transfer = *static_cast<Transfer*>(self);
    transfer.notice();
    if (transfer.toSend_.empty() && !transfer.sendingEnded_) {
        transfer.paused_ = true;
        return CURL_READFUNC_PAUSE;
    }
    const size_t given = transfer.toSend_.copy(bytes, count);
    transfer.toSend_.remove_prefix(given);
    return given;
}

int Transfer::connected(void* self, char* /*server*/, char* /*own*/, int /*serverPort*/,
                        int /*ownPort*/) {
    auto& transfer = *static_cast<Transfer*>(self);
    transfer.connected_ = true;
    transfer.notice();
    return CURL_PREREQFUNC_OK;
}

void Transfer::notice() {
    lastSign_ = Clock::now();
}

void Transfer::requireGood() const {
    if (result_ != CURLE_OK) {
        throw NetError(netErrorOf(result_, lastLine_));
    }
}

void Transfer::run() {
    if (!started_) {
        started_ = curl_multi_add_handle(line_->multi(), easy_.get()) == CURLM_OK;
        require(started_, G_NET_NO_MEMORY);
    }
    int running = 0;
    int left = 0;
    curl_multi_perform(line_->multi(), &running);
    while (const CURLMsg* const message = curl_multi_info_read(line_->multi(), &left)) {
        if (message->msg == CURLMSG_DONE) {
            over_ = true;
            result_ = message->data.result;
        }
    }
}

void Transfer::wait() {
    const auto limit = connected_ ? idleTimeout_ : connectTimeout_;
    const auto left =
        limit - std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - lastSign_);
    if (left.count() <= 0) {
        over_ = true;
        result_ = CURLE_OPERATION_TIMEDOUT;
        return;
    }
    curl_multi_poll(line_->multi(), nullptr, 0,
                    static_cast<int>(std::min(left, kLongestWait).count()), nullptr);
}

/// Has the transfer go on until something is reached or it is over; the time in which nobody wanted
/// anything of it does not count as silence.
template <typename Condition>
void Transfer::runUntil(Condition reached) {
    notice();
    while (!over_ && !reached()) {
        run();
        if (!over_ && !reached()) {
            wait();
        }
    }
}

void Transfer::resume() {
    if (std::exchange(paused_, false)) {
        curl_easy_pause(easy_.get(), CURLPAUSE_CONT);
    }
}

void Transfer::connect() {
    runUntil([this] { return connected_; });
    requireGood();
}

void Transfer::awaitContents() {
    runUntil([this] { return contentsFollow_; });
    if (waiting() == 0) {
        requireGood();
    }
}

void Transfer::awaitEnd() {
    runUntil([this] {
        received_.clear();
        taken_ = 0;
        resume();
        return false;
    });
    requireGood();
}

size_t Transfer::send(std::string_view bytes) {
    toSend_ = bytes;
    resume();
    runUntil([this] { return toSend_.empty(); });
    const size_t left = std::exchange(toSend_, {}).size();
    return bytes.size() - left;
}

void Transfer::endSending() {
    sendingEnded_ = true;
    resume();
}

size_t Transfer::read(uint8_t* buffer, size_t size) {
    size_t done = 0;
    while (done < size) {
        if (waiting() == 0) {
            resume();
            runUntil([this] { return waiting() > 0; });
        }
        if (waiting() == 0) {
            requireGood();
            break;
        }
        const size_t count =
            received_.copy(reinterpret_cast<char*>(buffer) + done, size - done, taken_);
        taken_ += count;
        done += count;
    }
    return done;
}

size_t Transfer::available() {
    if (waiting() == 0 && !over_) {
        resume();
        run();
    }
    if (waiting() == 0) {
        requireGood();
    }
    return waiting();
}

} // namespace gpi
