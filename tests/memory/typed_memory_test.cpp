#include "support/random_calls.h"
#include "support/recording_platform.h"

#include <quarlo/typed_memory.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <map>
#include <string>
#include <vector>

using namespace quarlo::test;

namespace {

/// The registry belongs to the process: each test deletes what it made.
class TypedMemory : public testing::Test {
  protected:
    ~TypedMemory() override {
        for (void* const block : made) {
            GMGMemDelete(block);
        }
    }

    uint8_t* create(const std::u16string& name, int32_t size) {
        void* const block = GMGMemCreate(name.c_str(), size);
        if (block != nullptr && std::find(made.begin(), made.end(), block) == made.end()) {
            made.push_back(block);
        }
        return static_cast<uint8_t*>(block);
    }

    static std::u16string numbered(int number) {
        const std::string digits = std::to_string(number);
        return {digits.begin(), digits.end()};
    }

    RecordingPlatform platform;
    std::vector<void*> made;
};

TEST_F(TypedMemory, ABlockComesZeroedFromItsOwnSpace) {
    const uint8_t* const block = create(u"A", 16);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(platform.calls, std::vector{call(41, 8, 0, 16)});
    EXPECT_TRUE(std::all_of(block, block + 16, [](uint8_t byte) { return byte == 0; }));
}

TEST_F(TypedMemory, TheSameNameAndSizeFindTheSameBlock) {
    uint8_t* const block = create(u"A", 16);
    block[3] = 7;
    platform.forget();
    EXPECT_EQ(create(u"A", 16), block);
    EXPECT_EQ(block[3], 7);
    EXPECT_EQ(create(u"A", 32), nullptr);
    EXPECT_EQ(create(u"A", 15), nullptr);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(TypedMemory, NamesAreCaseSensitiveAndComparedWhole) {
    uint8_t* const block = create(u"Name", 16);
    EXPECT_EQ(GMGMemSelect(u"Name"), block);
    EXPECT_EQ(GMGMemSelect(u"name"), nullptr);
    EXPECT_EQ(GMGMemSelect(u"Nam"), nullptr);
    EXPECT_EQ(GMGMemSelect(u"Name2"), nullptr);
    EXPECT_NE(create(u"name", 16), block);
}

TEST_F(TypedMemory, NamesOfOneToFifteenUnits) {
    EXPECT_NE(create(u"123456789012345", 4), nullptr);
    EXPECT_NE(GMGMemSelect(u"123456789012345"), nullptr);
    EXPECT_NE(create(u"\xFFFF", 4), nullptr);
    for (const char16_t* const name : {u"", u"1234567890123456", u"12345678901234567"}) {
        EXPECT_EQ(create(name, 4), nullptr);
        EXPECT_EQ(GMGMemSelect(name), nullptr);
    }
}

TEST_F(TypedMemory, SizesOfZeroOrLessAreRefused) {
    platform.grantEmptyBlocks(true);
    EXPECT_EQ(create(u"A", 0), nullptr);
    EXPECT_EQ(create(u"A", -1), nullptr);
    EXPECT_EQ(create(u"A", INT32_MIN), nullptr);
    EXPECT_EQ(GMGMemSelect(u"A"), nullptr);
    EXPECT_EQ(platform.blocksInUse(), 0U);
}

TEST_F(TypedMemory, HoldsTwoHundredAndFiftySixBlocks) {
    for (int i = 0; i < 256; ++i) {
        uint8_t* const block = create(numbered(i), 8);
        ASSERT_NE(block, nullptr);
        GMGMemSetLong(block, 0, i);
    }
    platform.forget();
    EXPECT_EQ(create(u"one more", 8), nullptr);
    EXPECT_TRUE(platform.calls.empty());
    for (int i = 0; i < 256; ++i) {
        void* const block = GMGMemSelect(numbered(i).c_str());
        ASSERT_EQ(GMGMemGetLong(block, 0), i);
    }
    GMGMemDelete(GMGMemSelect(u"100"));
    EXPECT_NE(create(u"one more", 8), nullptr);
}

TEST_F(TypedMemory, AFailedAllocationIsTriedAgainInTheNextFreeEntry) {
    platform.failAllocation(1);
    EXPECT_NE(create(u"A", 16), nullptr);
    EXPECT_EQ(platform.count(41), 2U);
}

TEST_F(TypedMemory, WithoutMemoryEveryFreeEntryIsTried) {
    create(u"A", 16);
    platform.serve<41>([](int32_t, uint32_t, int32_t) { return static_cast<void*>(nullptr); });
    platform.forget();
    EXPECT_EQ(create(u"B", 16), nullptr);
    EXPECT_EQ(platform.count(41), 255U);
    EXPECT_EQ(GMGMemSelect(u"B"), nullptr);
}

TEST_F(TypedMemory, ADeletedBlockIsGone) {
    uint8_t* const block = create(u"A", 16);
    made.clear();
    platform.forget();
    GMGMemDelete(block);
    EXPECT_EQ(platform.calls, std::vector{call(42, 8, 0, block)});
    EXPECT_EQ(GMGMemSelect(u"A"), nullptr);
    EXPECT_EQ(GMGMemGetLong(block, 0), 0);
    EXPECT_NE(create(u"A", 99), nullptr);
}

TEST_F(TypedMemory, DeletingAnUnknownAddressDoesNothing) {
    uint8_t* const block = create(u"A", 16);
    platform.forget();
    GMGMemDelete(block + 4);
    GMGMemDelete(nullptr);
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(GMGMemSelect(u"A"), block);
}

TEST_F(TypedMemory, ANullAddressIsNoBlock) {
    EXPECT_EQ(GMGMemGetLong(nullptr, 0), 0);
    EXPECT_EQ(GMGMemGetString(nullptr, 0), nullptr);
    GMGMemSetLong(nullptr, 0, 1);
    GMGMemSetString(nullptr, 0, u"x");
}

TEST_F(TypedMemory, AnAddressInsideABlockIsNoBlock) {
    uint8_t* const block = create(u"A", 16);
    GMGMemSetLong(block + 4, 0, -1);
    EXPECT_EQ(GMGMemGetLong(block, 4), 0);
    GMGMemSetLong(block, 4, -1);
    EXPECT_EQ(GMGMemGetLong(block + 4, 0), 0);
    EXPECT_EQ(GMGMemGetString(block + 4, 0), nullptr);
}

TEST_F(TypedMemory, SmallValuesAreSignExtended) {
    uint8_t* const block = create(u"A", 4);
    GMGMemSetChar(block, 0, -128);
    GMGMemSetShort(block, 1, -32768);
    EXPECT_EQ(GMGMemGetChar(block, 0), -128);
    EXPECT_EQ(GMGMemGetShort(block, 1), -32768);
}

TEST_F(TypedMemory, ValuesStandInTheMachinesOrderAtAnyOffset) {
    uint8_t* const block = create(u"A", 16);
    const int32_t value = 0x12345678;
    const double number = -1.0 / 3.0;
    GMGMemSetLong(block, 3, value);
    GMGMemSetDouble(block, 7, number);
    EXPECT_EQ(std::memcmp(block + 3, &value, sizeof value), 0);
    const auto bytes = std::bit_cast<std::array<uint8_t, sizeof number>>(number);
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), block + 7));
    EXPECT_EQ(GMGMemGetDouble(block, 7), number);
}

TEST_F(TypedMemory, LongsFitUpToTheLastFourBytes) {
    uint8_t* const block = create(u"A", 16);
    GMGMemSetLong(block, 12, -1);
    EXPECT_EQ(GMGMemGetLong(block, 12), -1);
    GMGMemSetLong(block, 13, 0);
    EXPECT_EQ(GMGMemGetLong(block, 13), 0);
    EXPECT_EQ(GMGMemGetLong(block, 12), -1) << "nothing was written";
}

TEST_F(TypedMemory, EachWidthFitsJustUpToTheEnd) {
    uint8_t* const block = create(u"A", 16);
    std::fill(block, block + 16, uint8_t{1});
    EXPECT_NE(GMGMemGetChar(block, 15), 0);
    EXPECT_EQ(GMGMemGetChar(block, 16), 0);
    EXPECT_NE(GMGMemGetShort(block, 14), 0);
    EXPECT_EQ(GMGMemGetShort(block, 15), 0);
    EXPECT_NE(GMGMemGetDouble(block, 8), 0);
    EXPECT_EQ(GMGMemGetDouble(block, 9), 0);
    GMGMemSetChar(block, 16, 9);
    GMGMemSetShort(block, 15, 9);
    GMGMemSetDouble(block, 9, 9);
    EXPECT_TRUE(std::all_of(block, block + 16, [](uint8_t byte) { return byte == 1; }));
}

TEST_F(TypedMemory, OffsetsNearTheLimitDoNotWrapAround) {
    uint8_t* const block = create(u"A", 16);
    for (uint32_t offset = 0xFFFFFFF0; offset != 0; ++offset) {
        GMGMemSetChar(block, offset, -1);
        GMGMemSetLong(block, offset, -1);
        GMGMemSetDouble(block, offset, 1);
        GMGMemSetString(block, offset, u"\xFFFF");
        EXPECT_EQ(GMGMemGetLong(block, offset), 0);
        EXPECT_EQ(GMGMemGetString(block, offset), nullptr);
    }
    EXPECT_TRUE(std::all_of(block, block + 16, [](uint8_t byte) { return byte == 0; }));
}

TEST_F(TypedMemory, StringsAreFoundUpToTheSizeItself) {
    uint8_t* const block = create(u"A", 16);
    EXPECT_EQ(static_cast<void*>(GMGMemGetString(block, 0)), block);
    EXPECT_EQ(static_cast<void*>(GMGMemGetString(block, 5)), block + 5);
    EXPECT_EQ(static_cast<void*>(GMGMemGetString(block, 16)), block + 16);
    EXPECT_EQ(GMGMemGetString(block, 17), nullptr);
}

TEST_F(TypedMemory, AStringIsWrittenWholeOrNotAtAll) {
    uint8_t* const block = create(u"A", 16);
    GMGMemSetString(block, 0, u"1234567"); // with its NUL 16 bytes
    EXPECT_EQ(std::u16string(GMGMemGetString(block, 0)), u"1234567");
    GMGMemSetString(block, 0, u"abcdefgh");
    EXPECT_EQ(std::u16string(GMGMemGetString(block, 0)), u"1234567");
    GMGMemSetString(block, 2, u"abcdefg");
    EXPECT_EQ(std::u16string(GMGMemGetString(block, 0)), u"1234567");
    GMGMemSetString(block, 14, u"");
    GMGMemSetString(block, 15, u"");
    GMGMemSetString(block, 0, u"ab");
    EXPECT_EQ(std::u16string(GMGMemGetString(block, 0)), u"ab");
    EXPECT_EQ(std::u16string(GMGMemGetString(block, 6)), u"4567");
}

TEST_F(TypedMemory, AStringMayStandAtAnOddOffsetAndOverlapItsSource) {
    uint8_t* const block = create(u"A", 32);
    GMGMemSetString(block, 1, u"panel");
    GMGMemSetString(block, 3, GMGMemGetString(block, 1));
    char16_t text[6];
    std::memcpy(text, block + 3, sizeof text);
    EXPECT_EQ(std::u16string(text), u"panel");
}

TEST_F(TypedMemory, FindsEveryBlockThroughRandomChanges) {
    Random random(testSeed());
    std::map<std::u16string, std::pair<void*, int32_t>> model;
    for (int step = 0; step < 5000; ++step) {
        const std::u16string name = numbered(random.between(0, 399));
        const auto known = model.find(name);
        if (random.oneIn(6)) {
            void* const block = GMGMemSelect(name.c_str());
            ASSERT_EQ(block, known == model.end() ? nullptr : known->second.first);
            GMGMemDelete(block);
            model.erase(name);
        } else if (known != model.end()) {
            ASSERT_EQ(GMGMemCreate(name.c_str(), known->second.second), known->second.first);
            ASSERT_EQ(GMGMemCreate(name.c_str(), known->second.second + 1), nullptr);
            ASSERT_EQ(GMGMemGetLong(known->second.first, 0), known->second.second);
        } else {
            const int32_t size = random.between(4, 100);
            void* const block = GMGMemCreate(name.c_str(), size);
            ASSERT_EQ(block != nullptr, model.size() < 256);
            if (block != nullptr) {
                GMGMemSetLong(block, 0, size);
                model[name] = {block, size};
            }
        }
        ASSERT_EQ(platform.blocksInUse(), model.size());
        platform.forget();
    }
    for (const auto& [name, block] : model) {
        GMGMemDelete(block.first);
    }
}

} // namespace
