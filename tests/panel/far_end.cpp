#include "far_end.h"

#include "display/x_server.h"
#include "support/started_platform.h"
#include "vnc/served_display.h"
#include "vnc/viewer.h"

#include <SDL.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <zlib.h>

#include <cstring>
#include <optional>

namespace panel::test {
namespace {

using gpi::test::Environment;

/// Returns when all that was flushed is visible.
void settle() {
    gpi::test::service<GPIFlushForce>(GPI_SERVICE_FLUSH_FORCE)(nullptr, 0, 0, 1, 1);
}

class Window : public FarEnd {
  public:
    Environment::Values settings() const override {
        return {{"QUARLO_DISPLAY", "sdl"}, {"SDL_VIDEODRIVER", "dummy"}};
    }

    void open(const std::string& /*said*/) override {
        constexpr uint32_t kMostWindows = 1000;
        for (uint32_t id = 1; id < kMostWindows && window_ == nullptr; ++id) {
            window_ = SDL_GetWindowFromID(id);
        }
    }

    bool shows(uint32_t sum) override {
        settle();
        const SDL_Surface* const presented =
            window_ != nullptr ? SDL_GetWindowSurface(window_) : nullptr;
        return presented != nullptr && checksum(colorsOf(*presented)) == sum;
    }

  private:
    static std::vector<uint32_t> colorsOf(const SDL_Surface& surface) {
        std::vector<uint32_t> colors;
        for (int y = 0; y < surface.h; ++y) {
            const auto* const row =
                static_cast<const uint8_t*>(surface.pixels) + ptrdiff_t{y} * surface.pitch;
            for (int x = 0; x < surface.w; ++x) {
                uint32_t pixel = 0;
                std::memcpy(&pixel, row + ptrdiff_t{x} * surface.format->BytesPerPixel,
                            sizeof pixel);
                colors.push_back(colorOf(pixel, *surface.format));
            }
        }
        return colors;
    }

    static uint32_t colorOf(uint32_t pixel, const SDL_PixelFormat& format) {
        uint8_t red = 0;
        uint8_t green = 0;
        uint8_t blue = 0;
        SDL_GetRGB(pixel, &format, &red, &green, &blue);
        return uint32_t{red} << 16 | uint32_t{green} << 8 | blue;
    }

    SDL_Window* window_ = nullptr; ///< the platform's
};

class ServerScreen : public FarEnd {
  public:
    ServerScreen(int width, int height)
        : server_(std::to_string(width + 1) + "x" + std::to_string(height + 1) + "x24"),
          client_(XOpenDisplay(server_.display().c_str())),
          width_(width),
          height_(height) {
        if (client_ != nullptr) {
            // Its pointer is input too: it stays in the corner that the window does not cover.
            XWarpPointer(client_.get(), None, DefaultRootWindow(client_.get()), 0, 0, 0, 0, width,
                         height);
            XSync(client_.get(), False);
        }
    }

    Environment::Values settings() const override {
        return {{"QUARLO_DISPLAY", "sdl"},
                {"DISPLAY", server_.display()},
                {"WAYLAND_DISPLAY", std::nullopt},
                {"SDL_VIDEODRIVER", "x11"}};
    }

    void open(const std::string& /*said*/) override {}

    /// SDL has presented a picture when the server has it.
    bool shows(uint32_t sum) override {
        settle();
        return client_ != nullptr && checksum(colors()) == sum;
    }

  private:
    struct Close {
        void operator()(Display* display) const { XCloseDisplay(display); }
    };
    struct Destroy {
        void operator()(XImage* image) const { XDestroyImage(image); }
    };

    std::vector<uint32_t> colors() const {
        const std::unique_ptr<XImage, Destroy> image(XGetImage(
            client_.get(), DefaultRootWindow(client_.get()), 0, 0, static_cast<unsigned>(width_),
            static_cast<unsigned>(height_), AllPlanes, ZPixmap));
        std::vector<uint32_t> colors;
        for (int y = 0; image != nullptr && y < image->height; ++y) {
            for (int x = 0; x < image->width; ++x) {
                colors.push_back(static_cast<uint32_t>(XGetPixel(image.get(), x, y)));
            }
        }
        return colors;
    }

    gpi::test::XServer server_;
    std::unique_ptr<Display, Close> client_;
    int width_;
    int height_;
};

class RemoteViewer : public FarEnd {
  public:
    Environment::Values settings() const override {
        return {{"QUARLO_DISPLAY", "vnc"}, {"QUARLO_VNC_PORT", "0"}};
    }

    void open(const std::string& said) override { viewer_.emplace(gpi::test::portIn(said)); }

    bool shows(uint32_t sum) override {
        const auto arrived = [&] { return checksum(viewer_->picture()) == sum; };
        return viewer_->connected() && (arrived() || viewer_->until(arrived));
    }

  private:
    std::optional<gpi::test::Viewer> viewer_;
};

} // namespace

uint32_t checksum(const std::vector<uint32_t>& colors) {
    std::vector<uint8_t> bytes;
    bytes.reserve(colors.size() * 3);
    for (const uint32_t color : colors) {
        bytes.push_back(static_cast<uint8_t>(color >> 16));
        bytes.push_back(static_cast<uint8_t>(color >> 8));
        bytes.push_back(static_cast<uint8_t>(color));
    }
    return static_cast<uint32_t>(crc32_z(0, bytes.data(), bytes.size()));
}

std::unique_ptr<FarEnd> makeWindow() {
    return std::make_unique<Window>();
}

std::unique_ptr<FarEnd> makeServerScreen(int width, int height) {
    return std::make_unique<ServerScreen>(width, height);
}

std::unique_ptr<FarEnd> makeViewer() {
    return std::make_unique<RemoteViewer>();
}

} // namespace panel::test
