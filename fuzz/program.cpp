// Whole programs of calls of any exported function, on a platform that takes services away, gives
// them back, answers with nonsense and runs out of memory. Every call has to come back, nothing
// beside a surface or a block may be written, and no memory may be left behind.
#include "input.h"
#include "require.h"

#include "every_call/calls.h"
#include "every_call/nonsense.h"

#include <gtest/gtest.h>

#include <iterator>
#include <memory>

namespace quarlo::fuzz {
namespace {

using namespace quarlo::test;

constexpr int kMostSteps = 96;
constexpr int32_t kMostBytes = 1 << 20;

/// Numbers that an input spells: half of them as a sensible program would have them.
class Spelled : public Numbers {
  public:
    explicit Spelled(Input& in) : in_(in) {}

    int64_t number(int64_t usual) override {
        switch (in_.below(8)) {
        case 0:
            return in_.word();
        case 1:
            return static_cast<int32_t>(in_.pixel());
        case 2:
            return in_.coordinate();
        case 3:
            return usual + in_.below(5) - 2;
        default:
            return usual;
        }
    }

  private:
    Input& in_;
};

/// Calls visit(offer) with the service in a place of the list.
template <typename Visit>
void visitService(int32_t place, Visit visit) {
    Services::forEach([&, at = 0](auto offer) mutable {
        if (at++ == place) {
            visit(offer);
        }
    });
}

constexpr int32_t kServiceCount = 145;

/// What a program of calls runs on.
class HostilePlatform : public RecordingPlatform {
  public:
    explicit HostilePlatform(Input& in) : in_(in) {
        addDisplay(0, display_);
        addDisplay(1, second_);
        recordOperations(false);
        limitBlocks(kMostBytes);
    }

    void toggleService() {
        visitService(in_.below(kServiceCount), [this]<typename Offer>(Offer) {
            if (Offer::kNumber == GPI_SERVICE_MEMORY_FREE) {
                return; // without it blocks stay, which is not the library's fault
            }
            if (offers(Offer::kNumber)) {
                remove({Offer::kNumber});
            } else {
                restore(Offer::kNumber);
                GetGPIFunction();
            }
        });
    }

    void answerNonsense() {
        const int64_t nonsense = kNonsenseAnswers[in_.below(std::size(kNonsenseAnswers))];
        visitService(in_.below(kServiceCount), [&]<typename Offer>(Offer) {
            // Memory that is handed out stays real, so that what becomes of it can be watched.
            if (Offer::kNumber != GPI_SERVICE_MEMORY_ALLOC &&
                Offer::kNumber != GPI_SERVICE_MEMORY_FREE &&
                Offer::kNumber != GPI_SERVICE_MEMORY_REALLOC) {
                Nonsense<Offer::kNumber>::serve(*this, nonsense);
            }
        });
    }

    void failMemory() { failAllocation(in_.below(4)); }

    void scribbleOnClip() {
        const int16_t left = in_.coordinate();
        const int16_t top = in_.coordinate();
        const int16_t right = in_.coordinate();
        *display_->drawable = {left, top, right, in_.coordinate()};
    }

    void scribbleOnDisplay() {
        display_->width = in_.word();
        display_->bitsPerPixel = static_cast<int16_t>(in_.below(40));
        display_->colorType = static_cast<int8_t>(in_.below(4));
        display_->redMask = in_.pixel();
    }

    void expectIntact() {
        require(display_.memory().intact() && second_.memory().intact(),
                "memory beside a display was written");
    }

    /// As a program ends, its platform works.
    void recover() {
        for (int service = 1; service <= kLastService; ++service) {
            restore(service);
        }
        GetGPIFunction();
        failAllocation(0);
    }

  private:
    Input& in_;
    GuardedSurface display_{20, 14, 16};
    GuardedSurface second_{16, 9, 24};
};

void run(Input& in) {
    HostilePlatform platform(in);
    Spelled numbers(in);
    Panel panel(platform, numbers);
    constexpr void (HostilePlatform::*kHostilities[])() = {
        &HostilePlatform::toggleService, &HostilePlatform::answerNonsense,
        &HostilePlatform::failMemory, &HostilePlatform::scribbleOnClip,
        &HostilePlatform::scribbleOnDisplay};
    for (int step = 0; step < kMostSteps && !in.isUsedUp(); ++step) {
        const int32_t kind = in.below(16);
        if (kind < static_cast<int32_t>(std::size(kHostilities))) {
            (platform.*kHostilities[kind])();
        } else {
            const auto number = static_cast<uint16_t>(in.word());
            makeCall(everyCall()[number % everyCall().size()], panel);
        }
        platform.expectIntact();
    }
    platform.recover();
}

} // namespace
} // namespace quarlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    testing::GTEST_FLAG(break_on_failure) = true; // of what the platform watches
    quarlo::fuzz::Input input({data, size});
    quarlo::fuzz::run(input);
    return 0;
}
