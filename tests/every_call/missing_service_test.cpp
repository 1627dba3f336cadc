// Programs that call everything, on platforms that lack a service.
#include "every_call/stage.h"

#include <gtest/gtest.h>

using namespace quarlo::test;

namespace {

TEST(EveryCall, ComesBackWithoutAnyOneService) {
    Services::forEach([]<int Number, typename Signature>(Offer<Number, Signature>) {
        SCOPED_TRACE(Number);
        Stage stage;
        stage.remove<Number>();
        runEveryCall(stage.platform);
        EXPECT_EQ(stage.platform.count(Number), 0U);
        stage.expectIntact();
    });
}

TEST(EveryCall, ComesBackWithoutAnyService) {
    Stage stage;
    Services::forEach([&]<int Number, typename Signature>(Offer<Number, Signature>) {
        stage.platform.remove({Number});
    });
    runEveryCall(stage.platform);
    for (const ServiceCall& call : stage.platform.calls) {
        EXPECT_LT(call.service, 0) << call; // an entry point of the platform library
    }
    stage.expectIntact();
}

} // namespace
