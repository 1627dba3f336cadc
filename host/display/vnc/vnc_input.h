// What a viewer tells about its keys and pointer.
#pragma once

#include "display/projection.h"
#include "input/input.h"

#include <bitset>
#include <cstdint>

namespace gpi {

/// Hands on what one of several viewers does. What it holds down is released when it goes; what
/// others hold is not.
///
/// Pointer positions are pixels of the frame. A press beside the picture is none; a drag that
/// leaves it goes on along its edge.
class VncInput {
  public:
    explicit VncInput(Input& input) : input_(input) {}
    ~VncInput();
    VncInput(const VncInput&) = delete;
    VncInput& operator=(const VncInput&) = delete;

    /// @param symbol a keysym of the X Window System
    void key(uint32_t symbol, bool down);

    /// @param pixel where the pointer is
    /// @param buttons what is held there: bit 0 left, bit 2 right
    void pointer(const Projection::Pixel& pixel, int buttons);

  private:
    void setButton(Button button, bool down, bool beside);

    Input& input_;
    std::bitset<256> keys_; ///< held here, by place
    uint8_t buttons_ = 0;   ///< likewise
};

} // namespace gpi
