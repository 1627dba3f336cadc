// After all tests of this program: none of the platform's services was left out.
#include "refusing.h"

#include "platform/service_table.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace gpi::test;

constexpr int32_t kLast = 207;

/// Services without an argument that could be refused.
const std::set<int32_t> kWithoutArguments = {GPI_SERVICE_STOP,
                                             GPI_SERVICE_STOP_FIRST,
                                             GPI_SERVICE_NEXT_PIXEL,
                                             GPI_SERVICE_DESCRIBE,
                                             GPI_SERVICE_COUNT_SURFACES,
                                             GPI_SERVICE_COUNT_SIGNALS,
                                             GPI_SERVICE_START_EVENT_LOCK,
                                             GPI_SERVICE_START_EVENT_SIGNAL,
                                             GPI_SERVICE_SIGNAL_EVENT,
                                             GPI_SERVICE_EVENT_TAKEN,
                                             GPI_SERVICE_UNLOCK_EVENTS,
                                             GPI_SERVICE_NET_GET_LAST_ERROR};

/// Services that take whatever they are given.
const std::set<int32_t> kWithoutRefusal = {GPI_SERVICE_START, GPI_SERVICE_START_SECOND,
                                           GPI_SERVICE_WAIT_EVENT, GPI_SERVICE_LOCK_EVENTS,
                                           GPI_SERVICE_TIME};

bool canRefuse(int32_t number) {
    return quarlo::slotOf(number) < quarlo::kServiceCount && !kWithoutArguments.contains(number) &&
           !kWithoutRefusal.contains(number);
}

class Coverage : public testing::Environment {
  public:
    void TearDown() override {
        const bool all = testing::GTEST_FLAG(filter) == "*";
        for (int32_t number = 1; all && number <= kLast; ++number) {
            EXPECT_TRUE(!canRefuse(number) || refusing().contains(number))
                << "service " << number << " was not asked";
        }
    }
};

const testing::Environment* const coverage = testing::AddGlobalTestEnvironment(new Coverage);

} // namespace
