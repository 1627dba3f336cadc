#include "parts/edit_field.h"

#include "keyboard/key_names.h"

#include <gpi/keys.h>

#include <gtest/gtest.h>

namespace panel {
namespace {

void type(EditField& field, const char* text) {
    for (; *text != '\0'; ++text) {
        EXPECT_TRUE(field.key(strokeOf(*text)->key, false));
    }
}

TEST(EditField, PutsWhatIsTypedInPlaceOfWhatWasThere) {
    EditField field(10);
    field.begin(u"1.000");
    type(field, "-2.5");
    EXPECT_EQ(field.text(), u"-2.5");
}

TEST(EditField, InsertsWhereTheCursorIs) {
    EditField field(10);
    field.begin(u"15");
    field.key(GPI_KEY_END, false);
    field.key(GPI_KEY_LEFT, false);
    type(field, "2");
    EXPECT_EQ(field.text(), u"125");
}

TEST(EditField, ErasesOneCharacterOrTheSelection) {
    EditField field(10);
    field.begin(u"12345");
    field.key(GPI_KEY_END, false);
    field.key(GPI_KEY_BACKSPACE, false);
    EXPECT_EQ(field.text(), u"1234");
    field.key(GPI_KEY_HOME, false);
    field.key(GPI_KEY_DELETE, false);
    EXPECT_EQ(field.text(), u"234");
    field.key(GPI_KEY_RIGHT, true);
    field.key(GPI_KEY_RIGHT, true);
    field.key(GPI_KEY_DELETE, false);
    EXPECT_EQ(field.text(), u"4");
}

TEST(EditField, StaysAtItsEnds) {
    EditField field(10);
    field.begin(u"7");
    for (const int32_t key : {GPI_KEY_END, GPI_KEY_RIGHT, GPI_KEY_DELETE, GPI_KEY_HOME,
                              GPI_KEY_LEFT, GPI_KEY_BACKSPACE}) {
        EXPECT_TRUE(field.key(key, false));
        EXPECT_EQ(field.text(), u"7");
    }
}

TEST(EditField, TakesNoMoreThanItsLength) {
    EditField field(3);
    field.begin(u"123456");
    EXPECT_EQ(field.text(), u"123");
    field.key(GPI_KEY_END, false);
    type(field, "4");
    EXPECT_EQ(field.text(), u"123");
}

TEST(EditField, TypesWhatShiftMakesOfAKey) {
    EditField field(10);
    field.begin({});
    EXPECT_TRUE(field.key('3', true));
    EXPECT_EQ(field.text(), u"#");
    EXPECT_FALSE(field.key(GPI_KEY_F1, false));
    EXPECT_TRUE(field.key('4', true)) << "nothing that programs are written with, but no command";
    EXPECT_TRUE(field.key('S', true));
    EXPECT_EQ(field.text(), u"#S");
}

} // namespace
} // namespace panel
