// What a browser tells about keys and pointer.
#pragma once

#include "display/projection.h"
#include "input/input.h"

namespace gpi {

/// Hands on what happens to a page. Belongs to the page's thread.
///
/// Pointer positions are pixels of the frame. A press beside the picture is none; a drag that
/// leaves it goes on along its edge.
class CanvasInput {
  public:
    explicit CanvasInput(Input& input) : input_(input) {}

    /// @param code where the key is, as the browser names the place
    /// @param character what is on it, if that is one character, or its name
    /// @return whether it is a key of the platform's
    bool key(const char* code, const char* character, bool down);

    /// @param buttons that are held: bit 0 left, bit 1 right
    void pointer(const Projection::Pixel& pixel, int buttons);

    /// Whoever holds keys and buttons has turned to something else.
    void leave() { input_.releaseAll(); }

  private:
    void setButton(Button button, bool down, bool beside);

    Input& input_;
};

} // namespace gpi
