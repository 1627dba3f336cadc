#include "check.h"

#include "image/grf_file_bytes.h"

#include <gtest/gtest.h>

#include <set>

namespace quarlo::test {
namespace {

TEST(GrfCheck, FindsNothingInAGoodFile) {
    for (const GrfFields& good : {directFields(), packedFields(), wideFields(), indexedFields()}) {
        EXPECT_TRUE(grf::check(bytesOf(good)).empty());
    }
}

TEST(GrfCheck, NamesEachFaultAndItsPlace) {
    GrfFields fields = directFields();
    fields.stream = {0xC4, 1, 0xC5, 2, 0, 9};
    const auto findings = grf::check(bytesOf(fields));
    ASSERT_EQ(findings.size(), 2U);
    EXPECT_EQ(findings[0].offset, 34U);
    EXPECT_EQ(findings[0].what, "run past the last row");
    EXPECT_EQ(findings[1].offset, 37U);
    EXPECT_EQ(findings[1].what, "bytes behind the end of the stream");
}

TEST(GrfCheck, HasWordsOfItsOwnForEachFault) {
    std::set<std::string> words;
    size_t faults = 0;
    const auto add = [&](const FileBytes& file) {
        for (const grf::Finding& finding : grf::check(file)) {
            words.insert(finding.what);
        }
        ++faults;
    };
    const auto addChanged = [&](auto change) {
        GrfFields fields = directFields();
        change(fields);
        add(bytesOf(fields));
    };
    add({});
    add(FileBytes(40));
    addChanged([](GrfFields& file) { file.version = 9; });
    addChanged([](GrfFields& file) { file.type = 9; });
    addChanged([](GrfFields& file) { file.width = 0; });
    addChanged([](GrfFields& file) { file.height = 0; });
    addChanged([](GrfFields& file) { file.bits = 9; });
    addChanged([](GrfFields& file) { file.palette = {1}; });
    addChanged([](GrfFields& file) { file.red = 0; });
    FileBytes cut = bytesOf(packedFields());
    cut.resize(40);
    add(cut);
    FileBytes longer = bytesOf(directFields());
    longer.push_back(0);
    add(longer);
    addChanged([](GrfFields& file) { file.stream = {0x41}; });
    addChanged([](GrfFields& file) { file.stream = {}; });
    addChanged([](GrfFields& file) { file.stream = {0xCF, 1, 0}; });
    addChanged([](GrfFields& file) { file = indexedFields(), file.stream = {0x41, 9, 0}; });
    addChanged([](GrfFields& file) { file.stream = {0, 0}; });
    EXPECT_EQ(words.size(), faults);
}

} // namespace
} // namespace quarlo::test
