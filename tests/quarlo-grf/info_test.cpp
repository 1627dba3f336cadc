#include "info.h"

#include "image/grf_file_bytes.h"

#include <gtest/gtest.h>

namespace quarlo::test {
namespace {

std::string describe(const GrfFields& fields) {
    const FileBytes bytes = bytesOf(fields);
    GGrfFile file;
    EXPECT_EQ(GGrfOpenFile(&file, bytes.data(), bytes.size()), 1);
    return grf::describe(file);
}

TEST(GrfInfo, TellsSizeFormatRunsAndBytes) {
    EXPECT_EQ(describe(wideFields()), "3 x 2, 16 bits, 5-5-5\n"
                                      "2 runs: 0 skip, 1 literal, 1 fill\n"
                                      "9 bytes of runs against 12 raw: 3 saved (25 %)\n");
    EXPECT_EQ(describe(packedFields()), "5 x 2, 4 bits into 3 colours, 5-6-5\n"
                                        "3 runs: 1 skip, 1 literal, 1 fill\n"
                                        "8 bytes of runs against 5 raw: 3 more (60 %)\n");
    EXPECT_EQ(describe(indexedFields()).substr(0, 30), "4 x 2, 8 bits into 3 colours\n2");
}

} // namespace
} // namespace quarlo::test
