// One window of the display server.
#pragma once

#include "display/back_end.h"

#include <SDL.h>

#include <memory>
#include <vector>

namespace gpi {

/// Which of SDL's drivers may be used.
enum class VideoDriver {
    Any,          ///< whatever SDL_VIDEODRIVER names or SDL finds
    DisplayServer ///< only one that puts a window in front of a person
};

/// A window that shows part of a frame, enlarged by whole factors as far as there is room. It
/// belongs to the thread that opened it.
class SdlWindow {
  public:
    /// Null when there is none to be had; SDL_GetError() then says why.
    static std::unique_ptr<SdlWindow> open(const Settings& settings, VideoDriver driver);

    ~SdlWindow();
    SdlWindow(const SdlWindow&) = delete;
    SdlWindow& operator=(const SdlWindow&) = delete;

    /// Hands an area of the picture, words 0x00RRGGBB, to the window; only that area is copied.
    void upload(const std::vector<uint32_t>& rgb, const GRect& area);

    /// Makes what was uploaded visible.
    void present(const View& view);

    /// The pixel of the picture that a place of the window shows; the nearest one for a place
    /// beside the picture.
    struct Pixel {
        int16_t x;
        int16_t y;
        bool beside;
    };
    Pixel pixelAt(int x, int y) const;

    SDL_Window* window() const { return window_.get(); }
    SDL_Renderer* renderer() const { return renderer_.get(); }

  private:
    struct Destroy {
        void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
        void operator()(SDL_Renderer* renderer) const { SDL_DestroyRenderer(renderer); }
        void operator()(SDL_Texture* texture) const { SDL_DestroyTexture(texture); }
    };

    SdlWindow(int width, int height) : width_(width), height_(height) {}
    bool create(const Settings& settings);
    SDL_Rect partOf(const View& view) const;
    SDL_Rect placeOf(const View& view) const;

    int width_;
    int height_;
    View shown_;
    std::unique_ptr<SDL_Window, Destroy> window_;
    std::unique_ptr<SDL_Renderer, Destroy> renderer_;
    std::unique_ptr<SDL_Texture, Destroy> texture_;
};

} // namespace gpi
