// The registry of named memory blocks: found by name to open them, by address to use them.
#pragma once

#include <quarlo/typed_memory.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace quarlo {

/// A name of 1 to 15 units, the rest zeros. The zero behind the longest takes no room.
using BlockName = std::array<char16_t, G_TYPED_MEMORY_NAME_SIZE - 1>;

/// Copies a name. @return false for one that is empty or too long
bool readName(BlockName& out, const char16_t* name);

/// A block. A free one has no data, and a name that no block can have.
struct Block {
    BlockName name;
    uint16_t next; ///< link to the next in its bucket
    uint32_t size;
    unsigned char* data;
};

/// Every use of a block starts from its address, so addresses are hashed: the place of a block
/// among the others does not matter. A link is a block's place and 1, or 0: the registry is most of
/// the memory that the library takes for itself, and pointers would add a quarter to it.
class BlockRegistry {
  public:
    Block* findByName(const BlockName& name);

    Block* findByAddress(const void* data) {
        uint16_t link = buckets_[bucketOf(data)];
        while (link != 0 && blocks_[link - 1].data != data) {
            link = blocks_[link - 1].next;
        }
        return link != 0 ? &blocks_[link - 1] : nullptr;
    }

    std::array<Block, G_TYPED_MEMORY_COUNT>& blocks() { return blocks_; }

    /// Enters a block that has its data.
    void enter(Block& block);

    /// Takes a block out and makes it a free one.
    void remove(Block& block);

  private:
    static constexpr int kBucketBits = 8;

    /// Fibonacci hashing: the high bits of a product with 2^32 over the golden ratio.
    static size_t bucketOf(const void* data) {
        const auto key = static_cast<uint32_t>(reinterpret_cast<uintptr_t>(data) >> 3);
        return key * UINT32_C(2654435769) >> (32 - kBucketBits);
    }

    uint16_t linkTo(const Block& block) const {
        return static_cast<uint16_t>(&block - blocks_.data() + 1);
    }

    std::array<Block, G_TYPED_MEMORY_COUNT> blocks_;
    std::array<uint16_t, size_t{1} << kBucketBits> buckets_;
};

} // namespace quarlo
