#include "net/header_list.h"

#include "net/error.h"

#include <gtest/gtest.h>

namespace {

using namespace gpi;
using Lines = std::vector<std::string>;

TEST(HeaderList, KeepsHeadersInTheirOrder) {
    HeaderList list;
    list.add("B: 1\r\nA:2\r\n", 0);
    list.add("b: 3", G_HEADER_ADD);
    EXPECT_EQ(list.forCurl(), (Lines{"B: 1", "A: 2", "b: 3"}));
    list.add("B: 4", G_HEADER_REPLACE);
    EXPECT_EQ(list.forCurl(), (Lines{"A: 2", "B: 4"}));
}

TEST(HeaderList, TellsEmptyHeadersFromRemovedOnes) {
    HeaderList list;
    list.add("A:", G_HEADER_ADD);
    EXPECT_EQ(list.forCurl(), Lines{"A;"});
    EXPECT_TRUE(list.has("a"));
    list.add("A:", G_HEADER_REPLACE);
    EXPECT_EQ(list.forCurl(), Lines{"A:"});
    EXPECT_FALSE(list.has("a"));
    list.add("A: back", 0);
    EXPECT_TRUE(list.has("A"));
}

TEST(HeaderList, TakesAllOrNone) {
    HeaderList list;
    for (const char* const headers :
         {"A: 1\r\nbroken", "A: 1\r\nB\x01: 2", "A: 1\r\n: 2", "A: 1\r\nB C: 2", "A: 1\r\nB: \x7F",
          "A: 1\r\nB: 1\nC: 2", "\r\nA: 1"}) {
        EXPECT_THROW(list.add(headers, G_HEADER_ADD), NetError) << headers;
    }
    EXPECT_THROW(list.add("A: 1\r\na: 2", 0), NetError);
    EXPECT_EQ(list.forCurl(), Lines{});
}

} // namespace
