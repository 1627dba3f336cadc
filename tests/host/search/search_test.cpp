#include "support/started_platform.h"

#include <quarlo/search.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace gpi::test;

const auto search = service<GPISearch>(GPI_SERVICE_SEARCH);

int compare(const void* key, const void* element) {
    return *static_cast<const int*>(key) - *static_cast<const int*>(element);
}

TEST(Search, FindsEveryElementAndNoOther) {
    std::vector<int> sorted;
    for (int i = 0; i < 100; ++i) {
        sorted.push_back(i * 3);
        for (int key = -1; key <= i * 3 + 1; ++key) {
            const void* const found =
                search(&key, sorted.data(), static_cast<uint32_t>(sorted.size()), 4, compare);
            const bool there = key >= 0 && key % 3 == 0;
            EXPECT_EQ(found, there ? &sorted[static_cast<size_t>(key / 3)] : nullptr);
        }
    }
}

TEST(Search, FindsNothingInNothing) {
    int key = 1;
    EXPECT_EQ(search(&key, &key, 0, 4, compare), nullptr);
    EXPECT_EQ(search(&key, nullptr, 1, 4, compare), nullptr);
    EXPECT_EQ(search(&key, &key, 1, 0, compare), nullptr);
    EXPECT_EQ(search(&key, &key, 1, 4, nullptr), nullptr);
}

} // namespace
