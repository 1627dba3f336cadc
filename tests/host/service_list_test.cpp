// The platform's services, all of them, each with a function of its own.
#include "platform/service_table.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace {

constexpr int32_t kLast = 1000;

TEST(ServiceList, HasAFunctionForEveryService) {
    for (int32_t number = -kLast; number <= kLast; ++number) {
        const bool isService = quarlo::slotOf(number) < quarlo::kServiceCount;
        EXPECT_EQ(GPIGetService(number) != nullptr, isService) << number;
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
