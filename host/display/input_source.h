// One of several keyboards and pointers in front of the display.
#pragma once

#include "display/projection.h"
#include "input/input.h"

#include <bitset>
#include <cstdint>

namespace gpi {

/// Hands on what a device or a viewer does. What it holds down is released when it goes; what
/// others hold is not.
///
/// Pointer positions are pixels of the frame. A press beside the picture is none; a drag that
/// leaves it goes on along its edge.
class InputSource {
  public:
    explicit InputSource(Input& input) : input_(input) {}
    ~InputSource();
    InputSource(const InputSource&) = delete;
    InputSource& operator=(const InputSource&) = delete;

    void key(Key key, bool down);

    /// @param pixel where the pointer is
    /// @param buttons what is held there: bits of Button
    void pointer(const Projection::Pixel& pixel, uint8_t buttons);

  private:
    void setButton(Button button, bool down, bool beside);

    Input& input_;
    std::bitset<256> keys_; ///< held here, by place
    uint8_t buttons_ = 0;   ///< likewise
};

} // namespace gpi
