// Numbered memory spaces, each with its own blocks and its own limit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <unordered_map>

namespace gpi {

/// The heap behind all memory spaces. Every function may be called from any thread.
///
/// Blocks are known by address alone: a pointer that a space did not hand out, or that was freed
/// before, is recognised without being followed.
class Heap {
  public:
    Heap() = default;
    ~Heap();
    Heap(const Heap&) = delete;
    Heap& operator=(const Heap&) = delete;

    /// The limit of spaces that are opened by their first use; 0 for none.
    void setDefaultLimit(size_t bytes);

    /// In checked mode fresh and freed bytes are overwritten.
    void setChecked(bool checked);

    /// Opens a space or changes its limit, 0 for none. False for a limit below what is in use.
    bool open(int32_t space, size_t limit);

    /// Closes a space. False when there is none, or when it has blocks and `force` is not set.
    bool close(int32_t space, bool force);

    /// A block aligned for any type, of zeros where asked; null when `size` is zero or less, the
    /// limit would be passed, or memory is short.
    void* allocate(int32_t space, int32_t size, bool zeroed);

    /// Changes a block's size; it may move. Null where allocate() gives null and for a pointer that
    /// is no block of the space; the old block then stays as it was.
    void* resize(int32_t space, void* block, int32_t size, bool zeroed);

    /// Frees a block. False when the space has no such block.
    bool release(int32_t space, void* block);

    /// Marks the blocks that endReset() will free and cancelReset() will spare.
    bool beginReset(int32_t space);
    bool endReset(int32_t space);
    bool cancelReset(int32_t space);

    /// Bytes that a space has handed out.
    size_t used(int32_t space) const;

  private:
    struct Block {
        size_t size;
        bool resetFrees; ///< held by its space when the reset began
    };

    struct Space {
        size_t limit = 0;
        size_t used = 0;
        bool resetting = false;
        std::unordered_map<void*, Block> blocks;

        /// `returning` are bytes in use that will be given back at once.
        bool hasRoomFor(size_t bytes, size_t returning = 0) const {
            return limit == 0 || bytes <= limit - (used - returning);
        }
    };

    Space& openSpace(int32_t space);
    Space* find(int32_t space);
    void* obtain(Space& space, size_t size, bool zeroed);
    void fillFresh(void* bytes, size_t count, bool zeroed) const;
    void drop(Space& space, std::unordered_map<void*, Block>::iterator block);
    void dropAll(Space& space);

    mutable std::mutex mutex_;
    size_t defaultLimit_ = 0;
    bool checked_ = false;
    std::map<int32_t, Space> spaces_;
};

} // namespace gpi
