#include "store/remote.h"

#include <quarlo/quarlo.h>

#include <utility>

namespace panel {
namespace {

constexpr int32_t kPatience = 3000; // milliseconds for a server that says nothing
constexpr int32_t kFound = 200;     // status of HTTP

/// A session, a request or an open file, closed at the end.
class NetHandle {
  public:
    explicit NetHandle(GNetHandle* handle) : handle_(handle) {}
    ~NetHandle() {
        if (handle_ != nullptr) {
            GNetCloseHandle(handle_);
        }
    }
    NetHandle(const NetHandle&) = delete;
    NetHandle& operator=(const NetHandle&) = delete;

    GNetHandle* get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

  private:
    GNetHandle* handle_;
};

/// Whether an answer is the file. A server of FTP has no status: it gives the file or nothing.
bool isFile(GNetHandle* answer) {
    int32_t status = kFound;
    int32_t size = sizeof status;
    GNetHttpQueryInfo(answer, G_HTTP_STATUS, &status, &size, nullptr);
    return status == kFound;
}

class WebServer : public Remote {
  public:
    explicit WebServer(std::u16string url) : url_(std::move(url)) {}

    std::optional<std::string> read(const std::u16string& name,
                                    const std::atomic<bool>& stop) const override {
        std::array<char16_t, G_URL_SIZE> url{};
        int32_t size = G_URL_SIZE;
        if (GNetCombineUrl(url_.c_str(), name.c_str(), url.data(), &size, G_URL_ENCODE) != 1) {
            return std::nullopt;
        }
        const NetHandle session(GNetOpen(u"Quarlo Panel"));
        for (const int32_t option : {G_NET_OPTION_CONNECT_TIMEOUT, G_NET_OPTION_IDLE_TIMEOUT}) {
            GNetSetOption(session.get(), option, &kPatience, sizeof kPatience, 0);
        }
        const NetHandle answer(GNetOpenUrl(session.get(), url.data(), nullptr, G_NET_RELOAD));
        if (!answer || !isFile(answer.get())) {
            return std::nullopt;
        }
        return readPieces(stop, [&answer](char* piece, int32_t room) {
            return GNetReadFile(answer.get(), piece, room);
        });
    }

  private:
    std::u16string url_;
};

} // namespace

std::unique_ptr<Remote> makeWebServer(std::u16string url) {
    return std::make_unique<WebServer>(std::move(url));
}

} // namespace panel
