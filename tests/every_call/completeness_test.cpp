// The list of calls against the list of exported names, and the calls themselves.
#include "every_call/stage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <set>
#include <string>
#include <vector>

using namespace quarlo::test;

namespace {

/// Services that programs find in the table of operations, and those for tools.
const std::set<int> kNeverCalled = {GPI_SERVICE_NEXT_PIXEL, GPI_SERVICE_DESCRIBE,
                                    GPI_SERVICE_COUNT_SURFACES, GPI_SERVICE_COUNT_SIGNALS};

TEST(EveryCall, IsThatOfEveryExportedFunction) {
    std::ifstream file(EXPORTS);
    std::vector<std::string> exported{std::istream_iterator<std::string>(file), {}};
    ASSERT_EQ(exported.size(), 264U);
    std::vector<std::string> called;
    for (const ProgramCall& call : everyCall()) {
        called.push_back(call.function);
    }
    std::sort(exported.begin(), exported.end());
    std::sort(called.begin(), called.end());
    EXPECT_EQ(called, exported);
}

/// The services that a program of every call reaches on a platform without some.
std::set<int> reachedWithout(std::initializer_list<int> services) {
    Stage stage;
    stage.platform.remove(services);
    runEveryCall(stage.platform);
    stage.expectIntact();
    std::set<int> reached;
    for (const ServiceCall& call : stage.platform.calls) {
        reached.insert(call.service);
    }
    return reached;
}

TEST(EveryCall, ReachesEveryService) {
    std::set<int> reached = reachedWithout({});
    reached.merge(reachedWithout({GPI_SERVICE_DRAW_STRING})); // then glyph by glyph
    Services::forEach([&]<int Number, typename Signature>(Offer<Number, Signature>) {
        EXPECT_EQ(reached.contains(Number), !kNeverCalled.contains(Number)) << Number;
    });
}

} // namespace
