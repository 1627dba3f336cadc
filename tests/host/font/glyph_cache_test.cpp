#include "font/glyph_cache.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace {

using gpi::Glyph;
using gpi::GlyphCache;
using Bits = std::vector<uint8_t>;

Glyph glyphOf(const Bits& bits) {
    return {true, static_cast<int16_t>(bits.size()), 1, 4, bits.data()};
}

TEST(GlyphCache, GivesBackWhatItKeeps) {
    GlyphCache cache(1024);
    EXPECT_FALSE(cache.find(7));
    const Bits bits = {1, 2, 3, 4, 5};
    const auto kept = cache.keep(7, glyphOf(bits), bits.size());
    ASSERT_TRUE(kept);
    EXPECT_NE(kept->bits, bits.data());
    const auto found = cache.find(7);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->bits, kept->bits);
    EXPECT_EQ(Bits(found->bits, found->bits + 5), bits);
    EXPECT_TRUE(found->exists);
    EXPECT_EQ(found->width, 5);
    EXPECT_EQ(found->height, 1);
    EXPECT_EQ(found->bitsPerPixel, 4);
    EXPECT_FALSE(cache.find(8));
}

TEST(GlyphCache, KeepsThatThereIsNoGlyph) {
    GlyphCache cache(1024);
    cache.keep(7, Glyph{}, 0);
    const auto found = cache.find(7);
    ASSERT_TRUE(found);
    EXPECT_FALSE(found->exists);
    EXPECT_EQ(cache.useOf(0, 100).glyphs, 0U);
}

TEST(GlyphCache, RefusesWhatIsLargerThanAll) {
    const Bits bits(41);
    GlyphCache cache(64);
    EXPECT_FALSE(cache.keep(1, glyphOf(bits), 41));
    EXPECT_TRUE(cache.keep(1, glyphOf(bits), 40));
    GlyphCache none(0);
    EXPECT_FALSE(none.keep(1, Glyph{}, 0));
    EXPECT_FALSE(none.find(1));
}

TEST(GlyphCache, CountsByRangesOfKeys) {
    GlyphCache cache(1024);
    const Bits bits(9);
    cache.keep(10, glyphOf(bits), 9);
    cache.keep(19, glyphOf(bits), 8);
    cache.keep(20, glyphOf(bits), 8);
    EXPECT_EQ(cache.useOf(10, 20).glyphs, 2U);
    EXPECT_EQ(cache.useOf(10, 20).bytes, 40U + 32U);
    EXPECT_EQ(cache.useOf(11, 19).glyphs, 0U);
}

// Whatever is kept, what is found is what was kept last under its key, the newest are there, and
// nothing takes more than the block.
TEST(GlyphCache, DropsTheOldestFirst) {
    quarlo::test::Random random(quarlo::test::testSeed());
    GlyphCache cache(2000);
    std::map<uint64_t, Bits> known;
    std::vector<uint64_t> order;
    for (uint64_t key = 0; key < 20'000; ++key) {
        Bits bits(static_cast<size_t>(random.between(0, 200)));
        std::generate(bits.begin(), bits.end(),
                      [&] { return static_cast<uint8_t>(random.bits()); });
        ASSERT_TRUE(cache.keep(key, glyphOf(bits), bits.size()));
        known[key] = bits;
        bool gone = false;
        size_t bytes = 0;
        for (uint64_t older = key + 1; older-- > (key > 100 ? key - 100 : 0);) {
            const auto found = cache.find(older);
            ASSERT_FALSE(found && gone)
                << older << " outlived a newer one, seed " << quarlo::test::testSeed();
            gone = !found;
            if (found) {
                const Bits& expected = known[older];
                ASSERT_TRUE(std::equal(expected.begin(), expected.end(), found->bits));
                bytes += 24 + (expected.size() + 7) / 8 * 8;
            }
        }
        ASSERT_TRUE(cache.find(key));
        ASSERT_LE(bytes, 2000U);
        // What a wrap leaves unused is less than one glyph.
        ASSERT_TRUE(key < 100 || bytes > 2000 - 2 * 224) << bytes;
        known.erase(key > 200 ? key - 200 : UINT64_MAX);
    }
}

} // namespace
