// The queue beside its model, on random calls.
#include "event/queue_model.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

using namespace quarlo::test;

namespace {

QueueCall randomCall(Random& random) {
    constexpr QueueCall::Kind kKinds[] = {
        QueueCall::Post,       QueueCall::Post,        QueueCall::Post,  QueueCall::Post,
        QueueCall::Post,       QueueCall::Post,        QueueCall::Post,  QueueCall::PostUnique,
        QueueCall::PostUnique, QueueCall::Take,        QueueCall::Take,  QueueCall::Take,
        QueueCall::Take,       QueueCall::ClearTarget, QueueCall::Force, QueueCall::DoNotForce};
    const QueueCall::Kind kind = random.oneIn(60)
                                     ? random.pick({QueueCall::Pump, QueueCall::ClearTimer})
                                 : random.oneIn(12) ? QueueCall::ClearTimer
                                                    : random.pick(kKinds);
    return {kind, event(static_cast<uint16_t>(random.between(1, 3)),
                        static_cast<uint32_t>(random.between(1, 4)),
                        static_cast<uint32_t>(random.between(1, 2)) | 0x10000,
                        static_cast<uint32_t>(random.between(1, 2)))};
}

TEST(QueueModel, AgreesOnRandomCalls) {
    forRandomCalls(2000, 300, randomCall, differenceAfter);
}

} // namespace
