// Memory in which a write one byte too far faults at once, and surfaces that live in it.
#pragma once

#include <quarlo/surface.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quarlo::test {

/// The bits a pixel that surfaces can have.
inline constexpr int16_t kDepths[] = {8, 16, 24};

/// The end of a block that touches an inaccessible page. The bytes between the other end and its
/// page are watched: the test fails at the block's end if they were written, or where it asks.
enum class Against { End, Start };

/// A block of memory between two inaccessible pages, filled with a pattern.
class GuardedMemory {
  public:
    static constexpr uint8_t kFresh = 0xA5;

    /// `alignment` is a power of two. Against the end, up to alignment - 1 bytes past the block
    /// are watched only.
    explicit GuardedMemory(size_t size, Against side = Against::End, size_t alignment = 1);
    ~GuardedMemory();
    GuardedMemory(const GuardedMemory&) = delete;
    GuardedMemory& operator=(const GuardedMemory&) = delete;

    uint8_t* data() { return data_; }
    const uint8_t* data() const { return data_; }
    size_t size() const { return size_; }

    /// Whether nobody wrote beside the block.
    bool intact() const;

  private:
    size_t size_;
    uint8_t* mapping_;
    size_t mappingSize_;
    uint8_t* pages_; ///< accessible bytes
    size_t pagesSize_;
    uint8_t* data_;
};

/// A surface whose pixels lie in guarded memory and start at zero. The record is the test's own:
/// it may be changed at will, and the library must not free it.
class GuardedSurface {
  public:
    /// A direct-colour surface with the usual masks of its depth.
    GuardedSurface(int16_t width, int16_t height, int16_t bitsPerPixel, Against side = Against::End,
                   int16_t padding = 0);
    /// A palette surface of 8 bits a pixel.
    GuardedSurface(int16_t width, int16_t height, std::vector<uint32_t> palette,
                   Against side = Against::End);
    GuardedSurface(const GuardedSurface&) = delete;
    GuardedSurface& operator=(const GuardedSurface&) = delete;

    GVram* get() { return &vram_; }
    GVram* operator->() { return &vram_; }
    GVram& operator*() { return vram_; }
    const GVram& operator*() const { return vram_; }

    GuardedMemory& memory() { return memory_; }

  private:
    GuardedMemory memory_;
    std::vector<uint32_t> palette_;
    GVram vram_;
};

/// The value of one pixel, low byte first. The place must lie in the surface.
uint32_t pixelAt(const GVram& surface, int x, int y);

/// Writes one pixel.
void setPixelAt(const GVram& surface, int x, int y, uint32_t pixel);

} // namespace quarlo::test
