// Programs that call everything, on platforms of which a service answers with nonsense.
#include "every_call/nonsense.h"
#include "every_call/stage.h"

#include <gtest/gtest.h>

#include <functional>
#include <type_traits>

using namespace quarlo::test;

namespace {

TEST(EveryCall, ComesBackWhateverAServiceAnswers) {
    Services::forEach([]<int Number, typename Signature>(Offer<Number, Signature>) {
        for (const int64_t answer : kNonsenseAnswers) {
            SCOPED_TRACE(testing::Message() << "service " << Number << " answers " << answer);
            Stage stage;
            Nonsense<Number>::serve(stage.platform, answer);
            runEveryCall(stage.platform);
            stage.expectIntact();
        }
    });
}

/// All but those that hand something out: without these hardly anything is called.
TEST(EveryCall, ComesBackWhenAllServicesAnswerNonsense) {
    for (const int64_t answer : kNonsenseAnswers) {
        SCOPED_TRACE(answer);
        Stage stage;
        Services::forEach([&]<int Number, typename Signature>(Offer<Number, Signature>) {
            if constexpr (!std::is_pointer_v<
                              typename std::function<ServiceSignature<Number>>::result_type>) {
                Nonsense<Number>::serve(stage.platform, answer);
            }
        });
        runEveryCall(stage.platform);
        stage.expectIntact();
    }
}

} // namespace
