#include "gcode/block_reader.h"

#include "variables.h"

#include <gtest/gtest.h>

namespace gcode {
namespace {

const FixedVariables kVariables({{1, 10.0}});

std::string faultOf(std::string_view line, const Variables* variables = &kVariables) {
    Block block;
    std::string fault;
    EXPECT_EQ(readBlock(line, variables, block, fault), Reading::Refused);
    return fault;
}

TEST(BlockReader, ReadsExpressionsAsValues) {
    Block block;
    std::string fault;
    ASSERT_EQ(readBlock("G1 X#1 Y-#1 Z[#1/4] F[100*2]", &kVariables, block, fault), Reading::Words);
    EXPECT_EQ(block.gCodes, std::vector{code(1)});
    EXPECT_EQ(block.value('X'), 10.0);
    EXPECT_EQ(block.value('Y'), -10.0);
    EXPECT_EQ(block.value('Z'), 2.5);
    EXPECT_EQ(block.value('F'), 200.0);
}

TEST(BlockReader, CollectsAssignmentsInOrder) {
    Block block;
    std::string fault;
    ASSERT_EQ(readBlock("N5 #100 = 5 #[#1]=-#1 (NOTE)", &kVariables, block, fault), Reading::Words);
    ASSERT_EQ(block.assignments.size(), 2U);
    EXPECT_EQ(block.assignments[0].variable, 100);
    EXPECT_EQ(block.assignments[0].value, 5.0);
    EXPECT_EQ(block.assignments[1].variable, 10);
    EXPECT_EQ(block.assignments[1].value, -10.0);
}

TEST(BlockReader, MarksDeletableBlocks) {
    Block block;
    std::string fault;
    EXPECT_EQ(readBlock("/X1", nullptr, block, fault), Reading::Words);
    EXPECT_TRUE(block.deletable);
    EXPECT_EQ(readBlock("/2 X1", nullptr, block, fault), Reading::Words);
    EXPECT_TRUE(block.deletable);
    EXPECT_EQ(readBlock("X1", nullptr, block, fault), Reading::Words);
    EXPECT_FALSE(block.deletable);
}

TEST(BlockReader, PassesOverWhatHoldsNoBlock) {
    Block block;
    std::string fault;
    for (const char* const line : {"", "  ", "(G1 X1)", "; G1", "%", "% O1"}) {
        EXPECT_EQ(readBlock(line, &kVariables, block, fault), Reading::Nothing) << line;
    }
}

TEST(BlockReader, NamesWhatItCannotRead) {
    EXPECT_EQ(faultOf("G1 X"), "X without a number");
    EXPECT_EQ(faultOf("G1 X#2"), "#2 is not set");
    EXPECT_EQ(faultOf("#100"), "#100 without =");
    EXPECT_EQ(faultOf("#100="), "#100 without a value");
    EXPECT_EQ(faultOf("#100=99999999999"), "#100 with a value out of range");
    EXPECT_EQ(faultOf("X[1/0]"), "X with a number out of range");
    EXPECT_EQ(faultOf("XSQRT[-1]"), "X with a number out of range");
    EXPECT_EQ(faultOf("G-1"), "G with a number out of range");
    EXPECT_EQ(faultOf("G1 ?"), "'?'");
    EXPECT_EQ(faultOf("X#1", nullptr), "X without a number");
    EXPECT_EQ(faultOf("#1=2", nullptr), "'#'");
}

} // namespace
} // namespace gcode
