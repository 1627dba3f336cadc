// The display for viewers that speak RFB, the protocol of VNC.
#pragma once

#include "config/settings.h"
#include "display/frame_show.h"
#include "display/projection.h"
#include "display/vnc/arrow.h"
#include "display/vnc/listener.h"
#include "input/input.h"

#include <rfb/rfb.h>

#include <memory>
#include <string>
#include <vector>

namespace gpi {

/// Serves a picture to viewers and hands on what they do. Belongs to one thread.
///
/// All viewers are served from a picture of the server's own, which changes between their updates
/// only, so that none ever gets parts of two frames. A viewer that does not take its update is
/// dropped after five seconds, in which the other viewers wait, but nobody else.
class VncServer : public FrameShow {
  public:
    /// Null when it cannot listen, or must not: without a password only at a loopback address.
    /// @param failure says why
    static std::unique_ptr<VncServer> open(const Settings& settings, Input& input,
                                           std::string& failure);

    ~VncServer() override;

    int port() const { return listener_.port(); }

    void run(FrameExchange& frames) override;

  private:
    struct Cleanup {
        void operator()(rfbScreenInfoPtr screen) const;
    };

    VncServer(const Settings& settings, Input& input, Listener listener);
    bool createScreen();

    void wait(int frames);
    void admit();
    void takeOver(const FrameExchange::News& news);

    static rfbNewClientAction onCome(rfbClientPtr client);
    static void onGo(rfbClientPtr client);
    static rfbCursorPtr cursorOf(rfbClientPtr client);
    static void onKey(rfbBool down, rfbKeySym symbol, rfbClientPtr client);
    static void onPointer(int buttons, int x, int y, rfbClientPtr client);

    const Size size_;
    const bool viewOnly_;
    std::string title_;
    std::string password_;
    char* passwords_[2] = {}; ///< as the library wants them: a list that ends with null
    Input& input_;
    Listener listener_;
    bool admitting_ = true; ///< false for a while when a connection could not be taken
    Projection projection_;
    std::vector<uint32_t> picture_; ///< what viewers get
    VncCursor arrow_;
    std::vector<rfbClientPtr> viewers_;
    std::unique_ptr<rfbScreenInfo, Cleanup> screen_; ///< goes first: it still tells who leaves
};

} // namespace gpi
