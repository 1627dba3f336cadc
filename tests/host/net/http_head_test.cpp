#include "net/http_head.h"

#include "net/error.h"

#include <gtest/gtest.h>

namespace {

using gpi::HttpHead;

TEST(HttpHead, HoldsTheLastAnswer) {
    HttpHead head;
    for (const char* const line : {"HTTP/1.1 100 Continue", "X: old"}) {
        EXPECT_FALSE(head.take(line));
    }
    EXPECT_TRUE(head.take(""));
    for (const char* const line :
         {"HTTP/1.1 404 Not Found", "Set: 1", "set:  2  ", "Empty:", "no header"}) {
        EXPECT_FALSE(head.take(line));
    }
    EXPECT_TRUE(head.take(""));
    EXPECT_EQ(head.version(), "HTTP/1.1");
    EXPECT_EQ(head.status(), 404);
    EXPECT_EQ(head.statusText(), "Not Found");
    EXPECT_EQ(head.field("SET"), "1");
    EXPECT_EQ(head.field("Set", 1), "2");
    EXPECT_EQ(head.field("Set", 2), std::nullopt);
    EXPECT_EQ(head.field("Empty"), "");
    EXPECT_EQ(head.field("X"), std::nullopt);
    EXPECT_EQ(head.allFields(), "Set: 1\r\nset:  2  \r\nEmpty:\r\nno header\r\n");
}

TEST(HttpHead, MayHaveNoStatusText) {
    HttpHead head;
    head.take("HTTP/2 204");
    EXPECT_EQ(head.version(), "HTTP/2");
    EXPECT_EQ(head.status(), 204);
    EXPECT_EQ(head.statusText(), "");
    head.take("HTTP/1.0 nonsense");
    EXPECT_EQ(head.status(), 0);
}

TEST(HttpHead, HasAnEnd) {
    HttpHead head;
    head.take("HTTP/1.1 200 OK");
    for (int count = 0; count < 1000; ++count) {
        head.take("A: b");
    }
    EXPECT_THROW(head.take("A: b"), gpi::NetError);
}

} // namespace
