#include "display/sdl_window.h"

#include "display/area.h"
#include "display/placement.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace gpi {
namespace {

bool displayServerNamed() {
    return std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
}

bool startVideo(VideoDriver driver) {
    const bool serverOnly = driver == VideoDriver::DisplayServer;
    if (serverOnly && !displayServerNamed()) {
        return false;
    }
    // An interrupt ends the program as it would without a window.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
    SDL_SetHint(SDL_HINT_VIDEODRIVER, serverOnly ? "x11,wayland" : nullptr);
    // Copying rectangles needs no graphics processor, whose driver takes longer to load than the
    // whole program. A variable of the hint's name chooses another one. Without the second hint the
    // software renderer would show its picture through that driver all the same.
    SDL_SetHint(SDL_HINT_RENDER_DRIVER, "software");
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    // The first finger on a touch screen is the left button.
    SDL_SetHint(SDL_HINT_TOUCH_MOUSE_EVENTS, "1");
    // A press counts, also the one by which the window gets the keyboard.
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    // Closing the window is told once, as what it is.
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) {
        return false;
    }
    SDL_StopTextInput(); // keys are wanted, not what an input method makes of them
    const std::string_view found = SDL_GetCurrentVideoDriver();
    if (serverOnly && found != "x11" && found != "wayland") {
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
        return false;
    }
    return true;
}

} // namespace

std::unique_ptr<SdlWindow> SdlWindow::open(const Settings& settings, VideoDriver driver) {
    if (!startVideo(driver)) {
        return nullptr;
    }
    std::unique_ptr<SdlWindow> self(new SdlWindow(settings.width, settings.height));
    return self->create(settings) ? std::move(self) : nullptr;
}

SdlWindow::~SdlWindow() {
    texture_.reset();
    renderer_.reset();
    window_.reset();
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
}

bool SdlWindow::create(const Settings& settings) {
    window_.reset(SDL_CreateWindow(settings.title.c_str(), SDL_WINDOWPOS_UNDEFINED,
                                   SDL_WINDOWPOS_UNDEFINED, width_ * settings.scale,
                                   height_ * settings.scale, SDL_WINDOW_RESIZABLE));
    if (window_ == nullptr) {
        return false;
    }
    renderer_.reset(SDL_CreateRenderer(window_.get(), -1, 0));
    if (renderer_ == nullptr) {
        return false;
    }
    texture_.reset(SDL_CreateTexture(renderer_.get(), SDL_PIXELFORMAT_ARGB8888,
                                     SDL_TEXTUREACCESS_STREAMING, width_, height_));
    return texture_ != nullptr && SDL_SetTextureBlendMode(texture_.get(), SDL_BLENDMODE_NONE) == 0;
}

void SdlWindow::upload(const std::vector<uint32_t>& rgb, const GRect& area) {
    const SDL_Rect rect{area.left, area.top, widthOf(area), heightOf(area)};
    const auto first = static_cast<size_t>(area.top) * static_cast<size_t>(width_) +
                       static_cast<size_t>(area.left);
    SDL_UpdateTexture(texture_.get(), &rect, &rgb[first],
                      width_ * static_cast<int>(sizeof(uint32_t)));
}

void SdlWindow::present(const View& view) {
    shown_ = view;
    const SDL_Rect part = partOf(view);
    const SDL_Rect place = placeOf(view);
    SDL_SetRenderDrawColor(renderer_.get(), 0, 0, 0, SDL_ALPHA_OPAQUE);
    SDL_RenderClear(renderer_.get());
    SDL_RenderCopy(renderer_.get(), texture_.get(), &part, &place);
    SDL_RenderPresent(renderer_.get());
}

SdlWindow::Pixel SdlWindow::pixelAt(int x, int y) const {
    const SDL_Rect part = partOf(shown_);
    const SDL_Rect place = placeOf(shown_);
    const int column = unitAt(x, place.x, place.w, part.w);
    const int row = unitAt(y, place.y, place.h, part.h);
    const int nearestColumn = std::clamp(column, 0, part.w - 1);
    const int nearestRow = std::clamp(row, 0, part.h - 1);
    return {static_cast<int16_t>(part.x + nearestColumn), static_cast<int16_t>(part.y + nearestRow),
            column != nearestColumn || row != nearestRow};
}

/// The part of the picture that a view shows.
SDL_Rect SdlWindow::partOf(const View& view) const {
    return {view.left, view.top, std::max(1, width_ / view.zoomX),
            std::max(1, height_ / view.zoomY)};
}

/// Where in the window it goes.
SDL_Rect SdlWindow::placeOf(const View& view) const {
    const SDL_Rect part = partOf(view);
    int windowWidth = 0;
    int windowHeight = 0;
    SDL_GetRendererOutputSize(renderer_.get(), &windowWidth, &windowHeight);
    const Placement at = place(part.w * view.zoomX, part.h * view.zoomY, windowWidth, windowHeight);
    return {at.x, at.y, at.width, at.height};
}

} // namespace gpi
