#include "handle_table.h"

#include <gtest/gtest.h>

#include <set>
#include <thread>
#include <vector>

namespace {

struct Opaque;
using Table = gpi::HandleTable<Opaque, int>;

TEST(HandleTable, FindsWhatItHolds) {
    Table table;
    Opaque* const one = table.add(std::make_shared<int>(1));
    Opaque* const two = table.add(std::make_shared<int>(2));
    EXPECT_EQ(*table.find(one), 1);
    EXPECT_EQ(*table.remove(two), 2);
    EXPECT_EQ(table.find(two), nullptr);
    EXPECT_EQ(table.remove(two), nullptr);
    EXPECT_EQ(*table.find(one), 1);
}

TEST(HandleTable, NeverGivesAHandleTwice) {
    Table table;
    std::set<Opaque*> given;
    for (int round = 0; round < 10'000; ++round) {
        Opaque* const handle = table.add(std::make_shared<int>(round));
        EXPECT_TRUE(given.insert(handle).second);
        table.remove(handle);
    }
    EXPECT_FALSE(given.contains(nullptr));
}

TEST(HandleTable, KnowsNoOtherPointers) {
    Table table;
    int local = 0;
    EXPECT_EQ(table.find(nullptr), nullptr);
    Opaque* const handle = table.add(std::make_shared<int>(1));
    EXPECT_EQ(table.find(nullptr), nullptr);
    EXPECT_EQ(table.find(reinterpret_cast<Opaque*>(&local)), nullptr);
    EXPECT_EQ(table.find(reinterpret_cast<Opaque*>(reinterpret_cast<uintptr_t>(handle) + 1)),
              nullptr);
}

TEST(HandleTable, HoldsUpTo1024) {
    Table table;
    std::vector<Opaque*> handles;
    while (Opaque* const handle = table.add(std::make_shared<int>(0))) {
        handles.push_back(handle);
    }
    EXPECT_EQ(handles.size(), 1024U);
    table.remove(handles[500]);
    EXPECT_NE(table.add(std::make_shared<int>(0)), nullptr);
}

TEST(HandleTable, ServesSeveralThreads) {
    Table table;
    const auto work = [&table](int number) {
        for (int round = 0; round < 2000; ++round) {
            Opaque* const handle = table.add(std::make_shared<int>(number));
            ASSERT_EQ(*table.find(handle), number);
            ASSERT_EQ(*table.remove(handle), number);
        }
    };
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back(work, number);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

} // namespace
