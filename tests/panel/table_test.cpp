#include "machine/table.h"

#include "panel_bench.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace panel::test {
namespace {

TEST(MacroTable, HasEveryVariableOnce) {
    std::set<int32_t> variables;
    for (int32_t row = 0; row < kMacroTable.rows; ++row) {
        EXPECT_TRUE(kMacroTable.address(row, 0)) << row;
        for (int32_t column = 0; column < 4; ++column) {
            if (const auto address = kMacroTable.address(row, column)) {
                EXPECT_TRUE(variables.insert(address->number).second);
            }
        }
    }
    EXPECT_EQ(variables.size(), 33U + 100U + 500U);
    EXPECT_EQ(*variables.begin(), 1);
    EXPECT_EQ(*variables.rbegin(), 999);
    EXPECT_EQ(kMacroTable.label(9), u"#100");
}

TEST(MacroTable, ShowsWhatIsNoNumberAsEmpty) {
    const Bench bench;
    const Address address = *kMacroTable.address(9, 2);
    EXPECT_EQ(cellText(kMacroTable, address), u"");
    ASSERT_EQ(carryOut({*setCell(kMacroTable, address, u"-0.25")}), 1);
    EXPECT_EQ(GNCDataIsNotaNumber(kChannel, 102), 0);
    EXPECT_EQ(cellText(kMacroTable, address), u"-0.25");
    ASSERT_EQ(carryOut({*setCell(kMacroTable, address, u"")}), 1);
    EXPECT_EQ(GNCDataIsNotaNumber(kChannel, 102), 1);
}

TEST(OffsetTables, RefuseWhatIsNoNumber) {
    const Address address = *kToolTable.address(2, 1);
    for (const char16_t* wrong : {u"", u"1.2.3", u"-", u"X"}) {
        EXPECT_FALSE(setCell(kToolTable, address, wrong));
    }
    const auto order = setCell(kToolTable, address, u"4.5");
    ASSERT_TRUE(order);
    EXPECT_EQ(order->item, G_NC_TOOL_OFFSET);
    EXPECT_EQ(order->number, 3);
    EXPECT_EQ(order->index, 1);
    EXPECT_EQ(order->value, 4.5);
}

TEST(OffsetTables, HaveTheAddressesOfTheControl) {
    const Bench bench;
    for (const Table* table : {&kWorkOffsetTable, &kToolTable}) {
        for (int32_t row = 0; row < table->rows; ++row) {
            for (int32_t column = 0; column < static_cast<int32_t>(table->columns.size());
                 ++column) {
                EXPECT_EQ(cellText(*table, *table->address(row, column)), u"0.000");
            }
        }
    }
}

TEST(OffsetsScreen, ChangesTheWorkPosition) {
    Bench bench;
    bench.run(std::string(kMakeReady) +
              "key F10\nkey F4\nkey Down\ntype -12.5\nkey Enter\nwait 300");
    EXPECT_EQ(bench.machine().work[kX], 12.5);
}

} // namespace
} // namespace panel::test
