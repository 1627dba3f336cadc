#include "vnc/viewer.h"

#include <rfb/rfbclient.h>

#include <cstdlib>
#include <cstring>
#include <utility>

namespace gpi::test {

struct Viewer::Handlers {
    static Viewer& of(rfbClient* client) {
        return *static_cast<Viewer*>(rfbClientGetClientData(client, nullptr));
    }

    static void area(rfbClient* client, int x, int y, int width, int height) {
        Viewer& self = of(client);
        if (std::exchange(self.fresh_, false)) {
            self.areas_.clear();
        }
        self.areas_.push_back({static_cast<int16_t>(x), static_cast<int16_t>(y),
                               static_cast<int16_t>(x + width - 1),
                               static_cast<int16_t>(y + height - 1)});
    }

    static void finished(rfbClient* client) {
        // Without an area it told of the pointer's shape.
        if (!std::exchange(of(client).fresh_, true)) {
            ++of(client).updates_;
        }
    }

    static char* password(rfbClient* client) { return strdup(of(client).password_.c_str()); }
};

void Viewer::Cleanup::operator()(rfbClient* client) const {
    std::free(client->frameBuffer);
    rfbClientCleanup(client);
}

Viewer::Viewer(int port, const std::string& password) : password_(password) {
    rfbEnableClientLogging = FALSE;
    rfbClient* const client = rfbGetClient(8, 3, 4);
    client->format.redShift = 16;
    client->format.greenShift = 8;
    client->format.blueShift = 0;
    client->appData.encodingsString = "raw";
    client->appData.useRemoteCursor = TRUE;
    client->GotFrameBufferUpdate = Handlers::area;
    client->FinishedFrameBufferUpdate = Handlers::finished;
    client->GetPassword = Handlers::password;
    client->serverHost = strdup("127.0.0.1");
    client->serverPort = port;
    rfbClientSetClientData(client, nullptr, this);
    if (rfbInitClient(client, nullptr, nullptr) != FALSE) { // frees the client when it fails
        client_.reset(client);
        update();
    }
}

Viewer::~Viewer() = default;

int Viewer::width() const {
    return client_->width;
}

int Viewer::height() const {
    return client_->height;
}

uint32_t Viewer::at(int x, int y) const {
    uint32_t pixel = 0;
    const size_t index =
        static_cast<size_t>(y) * static_cast<size_t>(width()) + static_cast<size_t>(x);
    std::memcpy(&pixel, client_->frameBuffer + index * sizeof pixel, sizeof pixel);
    return pixel & 0xFFFFFF;
}

std::vector<uint32_t> Viewer::picture() const {
    std::vector<uint32_t> pixels;
    for (int y = 0; y < height(); ++y) {
        for (int x = 0; x < width(); ++x) {
            pixels.push_back(at(x, y));
        }
    }
    return pixels;
}

bool Viewer::until(const std::function<bool()>& condition) {
    constexpr unsigned kLongMicroseconds = 60'000'000;
    do {
        const uint64_t before = updates_;
        while (updates_ == before) {
            if (WaitForMessage(client_.get(), kLongMicroseconds) <= 0 ||
                HandleRFBServerMessage(client_.get()) == FALSE) {
                return false;
            }
        }
    } while (!condition());
    return true;
}

bool Viewer::update() {
    return until([] { return true; });
}

void Viewer::key(uint32_t symbol, bool down) {
    SendKeyEvent(client_.get(), symbol, down ? TRUE : FALSE);
}

void Viewer::pointer(int x, int y, int buttons) {
    SendPointerEvent(client_.get(), x, y, buttons);
}

bool Viewer::sync() {
    // Messages are handled in order, and this one is always answered.
    SendFramebufferUpdateRequest(client_.get(), 0, 0, 1, 1, FALSE);
    return update();
}

} // namespace gpi::test
