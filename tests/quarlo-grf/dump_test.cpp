#include "dump.h"

#include "failure.h"
#include "image/grf_file_bytes.h"

#include <gtest/gtest.h>

namespace quarlo::test {
namespace {

/// Two opened files, and the table of them.
class GrfDump : public testing::Test {
  protected:
    GrfDump() {
        EXPECT_EQ(GGrfOpenFile(&wide_, wideBytes_.data(), wideBytes_.size()), 1);
        EXPECT_EQ(GGrfOpenFile(&packed_, packedBytes_.data(), packedBytes_.size()), 1);
    }

    std::vector<grf::Entry> named(const char* first, const char* second) const {
        return {{first, &wide_}, {second, &packed_}};
    }

  private:
    FileBytes wideBytes_ = bytesOf(wideFields());
    FileBytes packedBytes_ = bytesOf(packedFields());
    GGrfFile wide_;
    GGrfFile packed_;
};

TEST_F(GrfDump, IsCSource) {
    EXPECT_EQ(grf::dumpSource("icons", named("cycle-start", "home")),
              R"(/* Made by quarlo-grf. */
#include <quarlo/image.h>

QUARLO_BEGIN

extern const GGrfImage icons[];

QUARLO_END

/* cycle-start: 3 x 2, 16 bits, 5-5-5 */
static const uint8_t stream0[] = {
    0x42, 0x34, 0x12, 0x00, 0x00, 0xc4, 0xff, 0x7f, 0x00,
};

/* home: 5 x 2, 4 bits into 3 colours, 5-6-5 */
static const uint8_t stream1[] = {
    0x42, 0x12, 0x20, 0x02, 0x00, 0xc2, 0x21, 0x00,
};
static const uint32_t colors1[] = {
    0x00001234, 0x0000f800, 0x0000001f, 0x00000000, 0x00000000, 0x00000000, 0x00000000, 0x00000000,
    0x00000000, 0x00000000, 0x00000000, 0x00000000, 0x00000000, 0x00000000, 0x00000000, 0x00000000,
};
static const GGrfPalette palette1 = {3, colors1};

const GGrfImage icons[] = {
    {1, 3, 2, 16, 9, stream0, 0},
    {2, 5, 2, 4, 8, stream1, &palette1},
};
)");
}

TEST_F(GrfDump, HasAHeader) {
    EXPECT_EQ(grf::dumpHeader("icons", named("cycle-start", "home")), R"(/* Made by quarlo-grf. */
#ifndef ICONS_H
#define ICONS_H

#include <quarlo/image.h>

QUARLO_BEGIN

/** Places in `icons`. */
enum {
    ICONS_CYCLE_START,
    ICONS_HOME,
    ICONS_COUNT
};

extern const GGrfImage icons[ICONS_COUNT];

QUARLO_END

#endif
)");
}

TEST_F(GrfDump, OfTwoImagesOfOneNameIsRefused) {
    EXPECT_THROW(grf::dumpHeader("icons", named("jog-plus", "jog+plus")), grf::Failure);
    EXPECT_THROW(grf::dumpHeader("icons", named("home", "count")), grf::Failure);
}

TEST(GrfDumpName, IsAWordOfC) {
    EXPECT_TRUE(grf::isIdentifier("icons_24"));
    EXPECT_FALSE(grf::isIdentifier(""));
    EXPECT_FALSE(grf::isIdentifier("24icons"));
    EXPECT_FALSE(grf::isIdentifier("my-icons"));
    EXPECT_FALSE(grf::isIdentifier("icons;"));
}

} // namespace
} // namespace quarlo::test
