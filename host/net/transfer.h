// One transfer, from or to a server, that goes on only while someone wants something of it.
#pragma once

#include "net/error.h"
#include "net/line.h"
#include "net/options.h"
#include "net/source.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace gpi {

class Transfer : public Source {
  public:
    /// Prepares a transfer; which one is then said by set().
    Transfer(LinePool::Lease line, const Options& options);
    ~Transfer() override;
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    template <typename Value>
    void set(CURLoption option, Value value) {
        require(curl_easy_setopt(easy_.get(), option, value));
    }

    /// The same for a list of texts, such as CURLOPT_HTTPHEADER.
    void set(CURLoption option, const std::vector<std::string>& list);

    template <typename Value>
    Value info(CURLINFO what) const {
        Value value{};
        curl_easy_getinfo(easy_.get(), what, &value);
        return value;
    }

    /// Called with each line that the server says about the transfer, without its end. True means
    /// that the contents follow.
    using Listener = std::function<bool(std::string_view line)>;
    void setListener(Listener listener) { listener_ = std::move(listener); }

    // Each of these waits, and throws NetError when the transfer fails meanwhile.

    /// Until the server can be spoken to.
    void connect();
    /// Until the contents follow, or the transfer is over.
    void awaitContents();
    /// Until the transfer is over.
    void awaitEnd();

    /// Sends bytes. @return how many were taken: fewer when the transfer is over, well or badly
    size_t send(std::string_view bytes);
    /// Nothing more will be sent.
    void endSending();

    size_t read(uint8_t* buffer, size_t size) override;
    size_t available() override;
    bool good() const override { return result_ == CURLE_OK; }
    /// Throws why it failed, if it did.
    void requireGood() const;

  private:
    struct FreeList {
        void operator()(curl_slist* list) const { curl_slist_free_all(list); }
    };
    struct FreeEasy {
        void operator()(CURL* easy) const { curl_easy_cleanup(easy); }
    };
    using Clock = std::chrono::steady_clock;

    static size_t lineCame(char* bytes, size_t size, size_t count, void* self);
    static size_t bytesCame(char* bytes, size_t size, size_t count, void* self);
    static size_t bytesWanted(char* bytes, size_t size, size_t count, void* self);
    static int connected(void* self, char* server, char* own, int serverPort, int ownPort);

    template <typename Condition>
    void runUntil(Condition reached);
    void apply(const Options& options);
    void run();
    void wait();
    void resume();
    void notice();
    size_t waiting() const { return received_.size() - taken_; }

    LinePool::Lease line_;
    std::vector<std::unique_ptr<curl_slist, FreeList>> lists_;
    // A new one for each transfer: libcurl 7.88 leaks the lists of a handle that was used before.
    std::unique_ptr<CURL, FreeEasy> easy_;
    Listener listener_;
    std::chrono::milliseconds connectTimeout_;
    std::chrono::milliseconds idleTimeout_;
    Clock::time_point lastSign_;
    bool started_ = false;
    bool connected_ = false;
    bool contentsFollow_ = false;
    bool over_ = false;
    CURLcode result_ = CURLE_OK;
    std::string lastLine_;
    bool paused_ = false;
    std::string received_;
    size_t taken_ = 0; ///< of what was received
    std::string_view toSend_;
    bool sendingEnded_ = false;
};

} // namespace gpi
