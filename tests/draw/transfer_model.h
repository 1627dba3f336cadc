// Block transfers the slow way: pixel by pixel of the whole destination, bit by bit of a channel.
#pragma once

#include <quarlo/handle.h>
#include <quarlo/surface.h>

#include <cstdint>
#include <optional>

namespace quarlo::test {

/// The arguments of a transfer.
struct Blit {
    int16_t sourceX;
    int16_t sourceY;
    int16_t width;
    int16_t height;
    int16_t x;
    int16_t y;
    int32_t mode;
};

/// Its two places in surface coordinates, of one size; zero or less copies nothing.
struct MappedBlit {
    int sourceX;
    int sourceY;
    int width;
    int height;
    int x;
    int y;
};

MappedBlit mapBlit(const GDrawHandle& handle, const Blit& blit);

/// What is left of a transfer within the clip of the destination and the bounds of the source;
/// nothing for a transfer that is refused, too.
std::optional<MappedBlit> cutBlit(const GVram& source, const GVram& destination,
                                  const MappedBlit& blit);

/// Transfers within memory.
void modelTransfer(const GVram& source, GVram& destination, const MappedBlit& blit, int32_t mode);

/// A pixel of one surface as it is read, and moved to the channels of another.
uint32_t modelConversion(const GVram& source, const GVram& destination, uint32_t pixel);

} // namespace quarlo::test
