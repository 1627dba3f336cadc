#include "model/program_reader.h"

#include <gtest/gtest.h>

#include <string>

namespace toolpath {
namespace {

using Codes = std::vector<Code>;

/// The first block of a text.
Block firstBlock(std::string_view text) {
    Remarks remarks;
    Block block;
    EXPECT_TRUE(ProgramReader(text, remarks).next(block)) << text;
    EXPECT_TRUE(remarks.list().empty()) << text;
    return block;
}

/// What the reader says of a text that holds no readable block.
std::string refusal(std::string_view text) {
    Remarks remarks;
    Block block;
    EXPECT_FALSE(ProgramReader(text, remarks).next(block)) << text;
    return remarks.list().size() == 1 ? remarks.list().front().text : "not exactly one remark";
}

TEST(ProgramReader, ReadsWordsInEitherCaseWithAndWithoutBlanks) {
    const Block block = firstBlock("n10 g01 X 1.5y-2.Z+.25\tF\t300 M3 s 1200");
    EXPECT_EQ(block.gCodes, Codes{code(1)});
    EXPECT_EQ(block.mCodes, Codes{code(3)});
    EXPECT_EQ(block.value('N'), 10.0);
    EXPECT_EQ(block.value('X'), 1.5);
    EXPECT_EQ(block.value('Y'), -2.0);
    EXPECT_EQ(block.value('Z'), 0.25);
    EXPECT_EQ(block.value('F'), 300.0);
    EXPECT_EQ(block.value('S'), 1200.0);
    EXPECT_FALSE(block.has('I'));
}

TEST(ProgramReader, KeepsCodesInOrderWithTheirTenths) {
    EXPECT_EQ(firstBlock("G90G17G91.1G00").gCodes,
              (Codes{code(90), code(17), code(91, 1), code(0)}));
}

TEST(ProgramReader, TakesTheLastOfRepeatedWords) {
    EXPECT_EQ(firstBlock("X1 X2").value('X'), 2.0);
}

TEST(ProgramReader, PassesOverCommentsHeadersAndBlankLines) {
    const Block block = firstBlock("%\nO12 (PLATE)\n");
    EXPECT_EQ(block.line, 2);
    EXPECT_EQ(block.value('O'), 12.0);

    const Block words = firstBlock("\n  \n(alone)\n; alone\n% X9\nX1 (G99 X7) Y2 ; Z3");
    EXPECT_EQ(words.line, 6);
    EXPECT_TRUE(words.gCodes.empty());
    EXPECT_EQ(words.value('X'), 1.0);
    EXPECT_EQ(words.value('Y'), 2.0);
    EXPECT_FALSE(words.has('Z'));
}

TEST(ProgramReader, EndsAnOpenCommentWithItsLine) {
    Remarks remarks;
    ProgramReader reader("X1 (open\nX2", remarks);
    Block block;
    ASSERT_TRUE(reader.next(block));
    EXPECT_EQ(block.value('X'), 1.0);
    ASSERT_TRUE(reader.next(block));
    EXPECT_EQ(block.value('X'), 2.0);
    EXPECT_FALSE(reader.next(block));
}

TEST(ProgramReader, DrawsBlocksThatBlockDeleteCouldSkip) {
    EXPECT_EQ(firstBlock("/X1").value('X'), 1.0);
    EXPECT_EQ(firstBlock("/2 N5 X1").value('X'), 1.0);
    EXPECT_EQ(firstBlock("N5 /X1").value('X'), 1.0);
}

TEST(ProgramReader, CountsLinesOfEveryEnding) {
    Remarks remarks;
    ProgramReader reader("X1\r\nX2\rX3\n\nX5", remarks);
    Block block;
    for (const int line : {1, 2, 3, 5}) {
        ASSERT_TRUE(reader.next(block));
        EXPECT_EQ(block.line, line);
        EXPECT_EQ(block.value('X'), line);
    }
    EXPECT_FALSE(reader.next(block));
}

TEST(ProgramReader, PassesOverAByteOrderMark) {
    EXPECT_EQ(firstBlock("\xEF\xBB\xBFX4").value('X'), 4.0);
}

TEST(ProgramReader, EndsAtOnceOnAnEmptyText) {
    Remarks remarks;
    Block block;
    EXPECT_FALSE(ProgramReader("", remarks).next(block));
    EXPECT_TRUE(remarks.list().empty());
}

TEST(ProgramReader, NamesWhatIsNoWord) {
    EXPECT_EQ(refusal("#1=5"), "'#' is not drawn");
    EXPECT_EQ(refusal("X1 = 2"), "'=' is not drawn");
    EXPECT_EQ(refusal("X1.2.3.4"), "'.' is not drawn");
    EXPECT_EQ(refusal("\x7F"), "byte 0x7F is not drawn");
    EXPECT_EQ(refusal("\xC3\x84"), "byte 0xC3 is not drawn");
    EXPECT_EQ(refusal(std::string_view("X1\0Y1", 5)), "byte 0x00 is not drawn");
}

TEST(ProgramReader, NamesWordsWithoutANumber) {
    for (const char* text :
         {"X", "X Y1", "X-", "X+.", "X.", "X#1", "X- 1", "X--1", "X+-1", "Xinf", "Xnan", "X-inf"}) {
        EXPECT_EQ(refusal(text), "X without a number is not drawn") << text;
    }
}

TEST(ProgramReader, TakesNoExponent) {
    const Block block = firstBlock("X1E2");
    EXPECT_EQ(block.value('X'), 1.0);
    EXPECT_EQ(block.value('E'), 2.0);
}

TEST(ProgramReader, NamesNumbersBeyondItsRange) {
    EXPECT_EQ(firstBlock("N99999999").value('N'), 99999999.0);
    EXPECT_EQ(refusal("X100000000"), "X with a number out of range is not drawn");
    EXPECT_EQ(refusal("Y-100000000"), "Y with a number out of range is not drawn");
    EXPECT_EQ(refusal("X" + std::string(400, '9')), "X with a number out of range is not drawn");
    EXPECT_EQ(refusal("G1000"), "G with a number out of range is not drawn");
    EXPECT_EQ(refusal("G-1"), "G with a number out of range is not drawn");
    EXPECT_EQ(refusal("M-5"), "M with a number out of range is not drawn");
}

TEST(ProgramReader, DropsABlockThatItCannotReadAndGoesOn) {
    Remarks remarks;
    ProgramReader reader("X1 Y#2\nX3", remarks);
    Block block;
    ASSERT_TRUE(reader.next(block));
    EXPECT_EQ(block.line, 2);
    EXPECT_EQ(block.value('X'), 3.0);
    EXPECT_FALSE(block.has('Y'));
}

} // namespace
} // namespace toolpath
