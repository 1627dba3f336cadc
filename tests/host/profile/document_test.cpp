#include "profile/document.h"

#include "file/error.h"
#include "text/transcode.h"

#include <quarlo/file.h>

#include <gtest/gtest.h>

#include <utility>

namespace {

using gpi::ProfileDocument;

const char kText[] = "; Machine 12\n"
                     "\n"
                     "; what the axes are called\n"
                     "[Axes]\n"
                     "; the long one\n"
                     "First = X\n"
                     "Second = Y\n"
                     "\n"
                     "# colours\n"
                     "[Colors]\n"
                     "Back = 0xC0C0C0\n"
                     "; nothing follows\n"
                     "; but this\n";

/// The places of lines in a text, to see that all are there, and in order.
void expectInOrder(const std::string& text, std::initializer_list<const char*> lines) {
    size_t at = 0;
    for (const char* const line : lines) {
        at = text.find(line, at);
        ASSERT_NE(at, text.npos) << line << " in\n" << text;
    }
}

TEST(ProfileDocument, FindsValuesWhateverTheirCase) {
    const ProfileDocument document(kText);
    EXPECT_EQ(document.value("Axes", "First"), "X");
    EXPECT_EQ(document.value("AXES", "first"), "X");
    EXPECT_EQ(document.value("Axes", "Third"), std::nullopt);
    EXPECT_EQ(document.value("None", "First"), std::nullopt);
}

TEST(ProfileDocument, ListsNamesInTheirOrder) {
    const ProfileDocument document(kText);
    EXPECT_EQ(document.sections(), (std::vector<std::string>{"Axes", "Colors"}));
    EXPECT_EQ(document.keys("Axes"), (std::vector<std::string>{"First", "Second"}));
    EXPECT_TRUE(document.keys("None").empty());
}

TEST(ProfileDocument, KeepsCommentsAndOrder) {
    ProfileDocument document(kText);
    document.set("Axes", "second", "V");
    document.set("Axes", "Third", "Z");
    document.set("New", "Key", "value");
    expectInOrder(document.bytes(),
                  {"; Machine 12\n", "; what the axes are called\n[Axes]\n",
                   "; the long one\nFirst = X\n", "Second = V\n", "Third = Z\n",
                   "# colours\n[Colors]\n", "Back = 0xC0C0C0\n", "[New]\n", "Key = value\n"});
    expectInOrder(document.bytes(), {"; nothing follows\n; but this\n"});
}

TEST(ProfileDocument, ReadsBackWhatItWrote) {
    ProfileDocument document(kText);
    std::string bytes = document.bytes();
    for (int round = 0; round < 3; ++round) {
        const std::string again = ProfileDocument(bytes).bytes();
        EXPECT_EQ(again, bytes);
        bytes = again;
    }
}

TEST(ProfileDocument, KeepsAFileOfCommentsOnly) {
    expectInOrder(ProfileDocument("; one\n; two\n").bytes(), {"; one\n; two"});
    EXPECT_EQ(ProfileDocument("").bytes(), "");
}

TEST(ProfileDocument, KeepsEncodingAndLineEnds) {
    const std::string text = "[A]\r\nName = \xE4\xB8\xBB\xE8\xBB\xB8\r\n";
    const std::string utf16 = *gpi::transcode(text, "UTF-8", "UTF-16LE");
    const std::string big = *gpi::transcode(text, "UTF-8", "UTF-16BE");
    for (const std::string& bytes :
         {text, "\xEF\xBB\xBF" + text, "\xFF\xFE" + utf16, "\xFE\xFF" + big}) {
        ProfileDocument document(bytes);
        EXPECT_EQ(document.value("A", "Name"), "\xE4\xB8\xBB\xE8\xBB\xB8");
        EXPECT_EQ(document.bytes(), bytes);
    }
}

TEST(ProfileDocument, KeepsTextThatStartsLikeAMark) {
    const std::string text = "\n\xEF\xBB\xBF[A]=1\n[B]\nx=2\n";
    const std::string utf16 = *gpi::transcode(text, "UTF-8", "UTF-16LE");
    const std::string west = "\n\xFF\xFE=1\n[B]\nx=2\n"; // letters of a code page
    for (const std::string& bytes : {text, "\xEF\xBB\xBF" + text, "\xFF\xFE" + utf16, west}) {
        const ProfileDocument document(bytes, "CP1252");
        EXPECT_EQ(document.sections(), std::vector<std::string>{"B"});
        const ProfileDocument again(document.bytes(), "CP1252");
        EXPECT_EQ(again.sections(), std::vector<std::string>{"B"});
        EXPECT_EQ(again.bytes(), document.bytes());
    }
}

TEST(ProfileDocument, KeepsItsCodePage) {
    const std::string text = "[A]\nName = \xE4\xB8\xBB\xE8\xBB\xB8\n";
    const std::string bytes = *gpi::transcode(text, "UTF-8", "CP932");
    ProfileDocument document(bytes, "CP932");
    EXPECT_EQ(document.value("A", "Name"), "\xE4\xB8\xBB\xE8\xBB\xB8");
    document.set("A", "Unit", "\xE3\x8E\x9C"); // the sign of a millimetre
    EXPECT_EQ(document.bytes(), bytes + "Unit = \x87\x6F\n");
    document.set("A", "Unit", "\xE8\xBD\xB4"); // only in Chinese
    try {
        document.bytes();
        FAIL();
    } catch (const gpi::IoError& error) {
        EXPECT_EQ(error.number(), G_IO_UNSUPPORTED);
    }
    EXPECT_EQ(ProfileDocument(text, "CP932").bytes(), text); // UTF-8 all the same
}

TEST(ProfileDocument, KeepsSpacesOutWhereThereWereNone) {
    EXPECT_EQ(ProfileDocument("[A]\nx=1\n").bytes(), "[A]\nx=1\n");
}

TEST(ProfileDocument, RemovesKeysAndSections) {
    ProfileDocument document(kText);
    document.removeKey("Axes", "First");
    document.removeSection("Colors");
    document.removeKey("None", "x");
    EXPECT_EQ(document.keys("Axes"), std::vector<std::string>{"Second"});
    EXPECT_EQ(document.sections(), std::vector<std::string>{"Axes"});
}

TEST(ProfileDocument, RefusesBrokenText) {
    for (const std::string& bytes :
         {std::string("[A]\nx=\xFF\n"), std::string("\xFF\xFE[", 3), std::string("[A]\0", 4)}) {
        try {
            ProfileDocument{bytes};
            FAIL() << bytes;
        } catch (const gpi::IoError& error) {
            EXPECT_EQ(error.number(), G_IO_DAMAGED);
        }
    }
}

TEST(ProfileDocument, KeepsQuotesInsideQuotes) {
    ProfileDocument document("[A]\nx = \"\"b\"\"\ny = \" c \"\n");
    document.set("A", "z", "d");
    const ProfileDocument again(document.bytes());
    for (const ProfileDocument* read : {&std::as_const(document), &again}) {
        EXPECT_EQ(read->value("A", "x"), "\"b\"");
        EXPECT_EQ(read->value("A", "y"), " c ");
    }
}

TEST(ProfileDocument, PassesOverSectionsWithoutTheirEnd) {
    const ProfileDocument document("[A]\nx = 1\n [B\ny = 2\n[\nz = 3\n[C]\n");
    EXPECT_EQ(document.sections(), (std::vector<std::string>{"A", "C"}));
    EXPECT_EQ(document.keys("A"), (std::vector<std::string>{"x", "y", "z"}));
    EXPECT_EQ(ProfileDocument(document.bytes()).bytes(), document.bytes());
}

TEST(ProfileDocument, TakesEveryKindOfLineEnd) {
    const ProfileDocument document("[A]\rx = 1\r\ny = 2\n# one\r[B]\rz = 3\r; two");
    EXPECT_EQ(document.sections(), (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(document.keys("A"), (std::vector<std::string>{"x", "y"}));
    EXPECT_EQ(document.value("B", "z"), "3");
    EXPECT_EQ(ProfileDocument(document.bytes()).bytes(), document.bytes());
}

TEST(ProfileDocument, ReadsBackEveryNameAndValueThatItAdmits) {
    const std::string texts[] = {"a",    "a b", " a",    "a ",       "a=b",  "[a]", "a]",    ";a",
                                 "#a",   "a;b", "\"a\"", "a\"b",     "\"a",  "",    "a\nb",  "<<<x",
                                 "a\tb", "=",   " ",     "\xC3\xA4", "a\rb", ".",   "a\\nb", "'a'"};
    for (const std::string& name : texts) {
        for (const std::string& value : texts) {
            if (!ProfileDocument::isName(name) || !ProfileDocument::isValue(value)) {
                continue;
            }
            ProfileDocument document(kText);
            document.set(name, name, value);
            EXPECT_EQ(document.value(name, name), value) << name;
            const ProfileDocument read(document.bytes());
            EXPECT_EQ(read.value(name, name), value) << name;
            EXPECT_EQ(read.sections().size(), 3U) << name << " = " << value;
        }
    }
}

} // namespace
