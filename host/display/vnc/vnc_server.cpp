#include "display/vnc/vnc_server.h"

#include "display/input_source.h"
#include "display/vnc/keysym.h"

#include <poll.h>
#include <sys/select.h>

#include <cerrno>
#include <utility>

namespace gpi {
namespace {

constexpr size_t kMostViewers = 16;
constexpr int kPatienceMilliseconds = 5000;

VncServer& serverOf(rfbClientPtr client) {
    return *static_cast<VncServer*>(client->screen->screenData);
}

InputSource& inputOf(rfbClientPtr client) {
    return *static_cast<InputSource*>(client->clientData);
}

/// The buttons that a viewer holds: its bit 0 is the left one, bit 2 the right one.
uint8_t heldOf(int buttons) {
    const auto left = static_cast<uint8_t>(buttons & 1);
    const auto right = static_cast<uint8_t>(buttons >> 2 & 1);
    static_assert(static_cast<int>(Button::Left) == 1 && static_cast<int>(Button::Right) == 2);
    return static_cast<uint8_t>(left | right << 1);
}

} // namespace

std::unique_ptr<VncServer> VncServer::open(const Settings& settings, Input& input,
                                           std::string& failure) {
    if (settings.vncPassword.empty() && !isLoopback(settings.vncAddress)) {
        failure = "an address that other computers reach needs a password";
        return nullptr;
    }
    Listener listener = Listener::open(settings.vncAddress, settings.vncPort, failure);
    if (!listener) {
        return nullptr;
    }
    std::unique_ptr<VncServer> self(new VncServer(settings, input, std::move(listener)));
    if (!self->createScreen()) {
        failure = "memory is short";
        return nullptr;
    }
    return self;
}

VncServer::VncServer(const Settings& settings, Input& input, Listener listener)
    : size_{settings.width, settings.height},
      viewOnly_(settings.vncViewOnly),
      title_(settings.title),
      password_(settings.vncPassword),
      input_(input),
      listener_(std::move(listener)),
      projection_(View(), size_, size_),
      picture_(static_cast<size_t>(size_.width) * static_cast<size_t>(size_.height)),
      arrow_(makeArrow()) {}

VncServer::~VncServer() = default;

void VncServer::Cleanup::operator()(rfbScreenInfoPtr screen) const {
    rfbShutdownServer(screen, TRUE);
    rfbScreenCleanup(screen);
}

bool VncServer::createScreen() {
    rfbLogEnable(0);
    rfbScreenInfoPtr const screen = rfbGetScreen(nullptr, nullptr, size_.width, size_.height, 8, 3,
                                                 static_cast<int>(sizeof(uint32_t)));
    if (screen == nullptr) {
        return false;
    }
    screen->screenData = this;
    screen->desktopName = title_.c_str();
    screen->frameBuffer = reinterpret_cast<char*>(picture_.data());
    screen->serverFormat.redShift = 16; // the words of a frame exchange
    screen->serverFormat.greenShift = 8;
    screen->serverFormat.blueShift = 0;
    screen->alwaysShared = TRUE;
    screen->deferUpdateTime = 0; // frames come whole, so there is nothing to gather
    screen->deferPtrUpdateTime = 0;
    screen->maxClientWait = kPatienceMilliseconds;
    screen->ignoreSIGPIPE = FALSE; // the program's signals are its own
    screen->port = 0;              // connections come from the listener
    screen->ipv6port = 0;
    if (!password_.empty()) {
        passwords_[0] = password_.data();
        screen->authPasswdData = passwords_;
        screen->passwordCheck = rfbCheckPasswordByList;
    }
    screen->cursor = nullptr; // viewers may draw one, but it is no part of the picture
    screen->getCursorPtr = cursorOf;
    screen->newClientHook = onCome;
    screen->kbdAddEvent = onKey;
    screen->ptrAddEvent = onPointer;
    rfbInitServer(screen);
    screen_.reset(screen);
    return true;
}

void VncServer::run(FrameExchange& frames) {
    for (;;) {
        wait(frames.descriptor());
        if (!frames.take([&](const FrameExchange::News& news) { takeOver(news); })) {
            return;
        }
        frames.confirm();
        admit();
        rfbProcessEvents(screen_.get(), 0);
        // Viewers that may only look would keep the pointer from others by holding a button.
        if (screen_->pointerClient != nullptr && screen_->pointerClient->viewOnly != FALSE) {
            screen_->pointerClient = nullptr;
        }
    }
}

/// Returns when there is something to do.
void VncServer::wait(int frames) {
    constexpr int kRetryMilliseconds = 1000;
    std::vector<pollfd> descriptors;
    descriptors.push_back({frames, POLLIN, 0});
    descriptors.push_back({admitting_ ? listener_.descriptor() : -1, POLLIN, 0});
    for (rfbClientPtr const viewer : viewers_) {
        descriptors.push_back({viewer->sock, POLLIN, 0});
    }
    poll(descriptors.data(), descriptors.size(), admitting_ ? -1 : kRetryMilliseconds);
    admitting_ = true;
}

/// Takes a connection that waits.
void VncServer::admit() {
    UniqueFd connection = listener_.accept();
    if (!connection) {
        // Without descriptors to spare the listener would go on asking.
        admitting_ = errno == EAGAIN || errno == EWOULDBLOCK;
        return;
    }
    // The library keeps sockets in sets of the system's fixed size.
    if (viewers_.size() < kMostViewers && connection.get() < FD_SETSIZE) {
        rfbNewClientConnection(screen_.get(), connection.release());
    }
}

void VncServer::takeOver(const FrameExchange::News& news) {
    const auto copy = [&](const GRect& area) {
        for (int y = area.top; y <= area.bottom; ++y) {
            const size_t to = static_cast<size_t>(y) * static_cast<size_t>(size_.width) +
                              static_cast<size_t>(area.left);
            projection_.copyRow(news.rgb, y, area.left, widthOf(area), &picture_[to]);
        }
        rfbMarkRectAsModified(screen_.get(), area.left, area.top, area.right + 1, area.bottom + 1);
    };
    if (news.view != nullptr) {
        projection_ = Projection(*news.view, size_, size_);
        copy(wholeArea(size_.width, size_.height));
        return;
    }
    for (const GRect& area : news.areas) {
        if (const GRect seen = projection_.onScreen(area); !isEmpty(seen)) {
            copy(seen);
        }
    }
}

rfbNewClientAction VncServer::onCome(rfbClientPtr client) {
    VncServer& self = serverOf(client);
    client->clientData = new InputSource(self.input_);
    client->clientGoneHook = onGo;
    client->viewOnly = self.viewOnly_ ? TRUE : FALSE;
    self.viewers_.push_back(client);
    return RFB_CLIENT_ACCEPT;
}

void VncServer::onGo(rfbClientPtr client) {
    delete &inputOf(client);
    std::erase(serverOf(client).viewers_, client);
}

rfbCursorPtr VncServer::cursorOf(rfbClientPtr client) {
    return serverOf(client).arrow_.get();
}

void VncServer::onKey(rfbBool down, rfbKeySym symbol, rfbClientPtr client) {
    if (const auto key = keyOfSymbol(symbol)) {
        inputOf(client).key(*key, down != FALSE);
    }
}

void VncServer::onPointer(int buttons, int x, int y, rfbClientPtr client) {
    inputOf(client).pointer(serverOf(client).projection_.pixelAt(x, y), heldOf(buttons));
}

} // namespace gpi
