// What SDL tells about keys, pointer and window.
#pragma once

#include "display/sdl_window.h"
#include "input/input.h"

namespace gpi {

/// Hands on what happens to a window. Belongs to the window's thread.
///
/// Pointer positions are pixels of the picture. A press beside the picture is none; a drag that
/// leaves it goes on along its edge.
class SdlInput {
  public:
    SdlInput(const SdlWindow& window, Input& input) : window_(window), input_(input) {}

    void handle(const SDL_Event& event);

  private:
    void handleKey(const SDL_KeyboardEvent& event);
    void handleMove(const SDL_MouseMotionEvent& event);
    void handleButton(const SDL_MouseButtonEvent& event);
    void handleWindow(const SDL_WindowEvent& event);
    bool isDragging() const;

    const SdlWindow& window_;
    Input& input_;
};

} // namespace gpi
