// Glyphs that are held ready.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace gpi {

/// A glyph's bitmap, or the knowledge that there is none.
struct Glyph {
    bool exists = false;
    int16_t width = 0;
    int16_t height = 0;
    int16_t bitsPerPixel = 1;
    const uint8_t* bits = nullptr; ///< rows of whole bytes
};

/// Glyphs by key, in one block of memory that is filled round and round: the oldest make room for
/// new ones. A glyph takes 24 bytes, its bitmap rounded up to 8, and 8 more on average to be found.
class GlyphCache {
  public:
    /// @param bytes size of the block
    explicit GlyphCache(size_t bytes);

    /// What is known of a key. The bits stay good until the next keep().
    std::optional<Glyph> find(uint64_t key) const;

    /// Keeps a glyph under a key that was not found. The copy, or nothing when it is larger than
    /// the whole block.
    std::optional<Glyph> keep(uint64_t key, const Glyph& glyph, size_t bytes);

    struct Use {
        uint32_t glyphs = 0;
        uint32_t bytes = 0;
    };

    /// What the glyphs take whose keys lie between two, the first included.
    Use useOf(uint64_t first, uint64_t end) const;

  private:
    struct Entry {
        uint64_t key;
        uint32_t nextInBucket;
        uint32_t words;
        int16_t width;
        int16_t height;
        int16_t bitsPerPixel;
        bool exists;
    };
    static constexpr size_t kHeader = sizeof(Entry) / sizeof(uint64_t);
    static constexpr uint32_t kNone = UINT32_MAX;

    Entry& entryAt(uint32_t place) const { return *reinterpret_cast<Entry*>(words_.get() + place); }
    Glyph glyphAt(uint32_t place) const;
    uint32_t& bucketOf(uint64_t key);
    uint32_t bucketOf(uint64_t key) const;
    void makeRoom(uint32_t words);
    void removeOldest();

    uint32_t capacity_; ///< words of 8 bytes
    std::unique_ptr<uint64_t[]> words_;
    std::vector<uint32_t> buckets_; ///< the first of each chain of entries
    std::deque<uint32_t> order_;    ///< places of the entries, the oldest first
    uint32_t end_ = 0;              ///< where the next one goes
};

} // namespace gpi
