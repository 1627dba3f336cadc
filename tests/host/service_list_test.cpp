// The platform's services, all of them, each with a function of its own.
#include "platform/service_table.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace {

constexpr int32_t kLast = 1000;

/// Not offered yet: the network.
bool isToCome(int32_t number) {
    return number >= GPI_SERVICE_CRACK_URL && number <= GPI_SERVICE_NET_GET_LAST_ERROR;
}

bool isService(int32_t number) {
    return quarlo::slotOf(number) < quarlo::kServiceCount;
}

TEST(ServiceList, HasAFunctionForEveryService) {
    for (int32_t number = -kLast; number <= kLast; ++number) {
        const bool expected = isService(number) && !isToCome(number);
        EXPECT_EQ(GPIGetService(number) != nullptr, expected) << number;
    }
}

TEST(ServiceList, GivesTheSameFunctionHoweverOftenItIsAsked) {
    for (int32_t number = 0; number <= kLast; ++number) {
        EXPECT_EQ(GPIGetService(number), GPIGetService(number)) << number;
    }
}

TEST(ServiceList, HasNothingForNumbersFarOff) {
    for (const int32_t number : {INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(GPIGetService(number), nullptr) << number;
    }
}

TEST(ServiceList, HasNoFunctionForSeveralServices) {
    std::map<GPIFunction, std::vector<int32_t>> numbers;
    for (int32_t number = 0; number <= kLast; ++number) {
        if (GPIGetService(number) != nullptr) {
            numbers[GPIGetService(number)].push_back(number);
        }
    }
    // Filling the rectangle of GDDrawRect() is filling a rectangle.
    const std::vector<int32_t> same = {GPI_SERVICE_DRAW_RECT, GPI_SERVICE_FILL_RECT};
    for (const auto& [function, shared] : numbers) {
        EXPECT_TRUE(shared.size() == 1 || shared == same)
            << shared.size() << " services share one function, " << shared[0] << " among them";
    }
}

} // namespace
