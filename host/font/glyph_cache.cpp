#include "font/glyph_cache.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <new>

namespace gpi {
namespace {

constexpr size_t kWord = sizeof(uint64_t);

/// One bucket for the room of eight words, which is about one small glyph.
size_t bucketsFor(size_t words) {
    return std::bit_ceil(std::max<size_t>(words / 8, 1));
}

/// Fibonacci hashing: neighbouring characters of a style go to different buckets.
size_t hashOf(uint64_t key, size_t buckets) {
    return static_cast<uint32_t>(key * 0x9E3779B97F4A7C15U >> 32) & (buckets - 1);
}

} // namespace

GlyphCache::GlyphCache(size_t bytes)
    : capacity_(static_cast<uint32_t>(bytes / kWord)),
      words_(new uint64_t[capacity_]),
      buckets_(bucketsFor(capacity_), kNone) {}

uint32_t& GlyphCache::bucketOf(uint64_t key) {
    return buckets_[hashOf(key, buckets_.size())];
}

uint32_t GlyphCache::bucketOf(uint64_t key) const {
    return buckets_[hashOf(key, buckets_.size())];
}

Glyph GlyphCache::glyphAt(uint32_t place) const {
    const Entry& entry = entryAt(place);
    return {entry.exists, entry.width, entry.height, entry.bitsPerPixel,
            reinterpret_cast<const uint8_t*>(words_.get() + place + kHeader)};
}

std::optional<Glyph> GlyphCache::find(uint64_t key) const {
    for (uint32_t at = bucketOf(key); at != kNone; at = entryAt(at).nextInBucket) {
        if (entryAt(at).key == key) {
            return glyphAt(at);
        }
    }
    return std::nullopt;
}

std::optional<Glyph> GlyphCache::keep(uint64_t key, const Glyph& glyph, size_t bytes) {
    const size_t words = kHeader + (bytes + kWord - 1) / kWord;
    if (words > capacity_) {
        return std::nullopt;
    }
    makeRoom(static_cast<uint32_t>(words));
    const uint32_t place = end_;
    uint32_t& bucket = bucketOf(key);
    new (words_.get() + place) Entry{key,         bucket,       static_cast<uint32_t>(words),
                                     glyph.width, glyph.height, glyph.bitsPerPixel,
                                     glyph.exists};
    if (bytes > 0) {
        std::memcpy(words_.get() + place + kHeader, glyph.bits, bytes);
    }
    bucket = place;
    order_.push_back(place);
    end_ += static_cast<uint32_t>(words);
    return glyphAt(place);
}

void GlyphCache::makeRoom(uint32_t words) {
    if (words > capacity_ - end_) {
        while (!order_.empty() && order_.front() >= end_) {
            removeOldest();
        }
        end_ = 0;
    }
    while (!order_.empty() && order_.front() >= end_ && order_.front() - end_ < words) {
        removeOldest();
    }
}

void GlyphCache::removeOldest() {
    const uint32_t place = order_.front();
    uint32_t* link = &bucketOf(entryAt(place).key);
    while (*link != place) {
        link = &entryAt(*link).nextInBucket;
    }
    *link = entryAt(place).nextInBucket;
    order_.pop_front();
}

GlyphCache::Use GlyphCache::useOf(uint64_t first, uint64_t end) const {
    Use use;
    for (const uint32_t place : order_) {
        const Entry& entry = entryAt(place);
        if (entry.key >= first && entry.key < end && entry.exists) {
            ++use.glyphs;
            use.bytes += entry.words * static_cast<uint32_t>(kWord);
        }
    }
    return use;
}

} // namespace gpi
