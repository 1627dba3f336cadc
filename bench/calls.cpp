// Measures what one call costs where nothing is drawn: events, timers and typed memory, through the
// public interface on the host platform, on one core.
#include "core.h"

#include <gpi/host.h>
#include <quarlo/event.h>
#include <quarlo/platform.h>
#include <quarlo/timer.h>
#include <quarlo/typed_memory.h>

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <thread>
#include <vector>

namespace bench {
namespace {

constexpr int32_t kNoWait = 0;
constexpr int32_t kNoLimit = -1;

/// An event posted and taken again, the queue empty before and after.
void postAndTake(benchmark::State& state) {
    GEInitEvent();
    GEventMsg event{};
    GECreateEventMessage(&event, 100, 1, 2, 3);
    for (auto _ : state) {
        GESetEvent(event, 0);
        GEGetEvent(&event, static_cast<int32_t>(state.range(0)));
    }
    GEQuitEvent();
}

/// As many timers as there can be, of which none is due.
void checkTimers(benchmark::State& state) {
    constexpr uint32_t kNever = UINT32_MAX;
    GEInitEvent();
    for (uint16_t id = 0; id < G_TIMER_COUNT; ++id) {
        GESetTimer(1, id, kNever);
    }
    for (auto _ : state) {
        GECheckTimer();
    }
    for (uint16_t id = 0; id < G_TIMER_COUNT; ++id) {
        GEKillTimer(1, id);
    }
    GEQuitEvent();
}

constexpr int32_t kBlockSize = 4096;
constexpr uint32_t kOffsets = 1024; ///< different ones, so that none can be kept in a register

/// As many typed blocks as there can be.
class Blocks {
  public:
    Blocks() {
        for (size_t at = 0; at < blocks_.size(); ++at) {
            const char16_t name[] = {u'b', static_cast<char16_t>(at + 1), 0};
            blocks_[at] = GMGMemCreate(name, kBlockSize);
        }
    }
    ~Blocks() {
        for (void* const block : blocks_) {
            GMGMemDelete(block);
        }
    }
    Blocks(const Blocks&) = delete;
    Blocks& operator=(const Blocks&) = delete;

    void* at(int64_t place) const { return blocks_[static_cast<size_t>(place)]; }

  private:
    std::array<void*, G_TYPED_MEMORY_COUNT> blocks_{};
};

uint32_t offsetOf(uint32_t round) {
    return round % kOffsets * uint32_t{sizeof(int32_t)};
}

void readTyped(benchmark::State& state) {
    const Blocks blocks;
    const void* const block = blocks.at(state.range(0));
    uint32_t round = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(GMGMemGetLong(block, offsetOf(round++)));
    }
}

void writeTyped(benchmark::State& state) {
    const Blocks blocks;
    void* const block = blocks.at(state.range(0));
    uint32_t round = 0;
    for (auto _ : state) {
        GMGMemSetLong(block, offsetOf(round), static_cast<int32_t>(round));
        ++round;
    }
}

/// The limit: the same loads from one array, each checked against its size.
void readChecked(benchmark::State& state) {
    std::vector<unsigned char> array(kBlockSize);
    const unsigned char* const bytes = array.data();
    size_t size = array.size();
    benchmark::DoNotOptimize(size);
    uint32_t round = 0;
    for (auto _ : state) {
        const uint64_t offset = offsetOf(round++);
        int32_t value = 0;
        if (offset + sizeof value <= size) {
            std::memcpy(&value, bytes + offset, sizeof value);
        }
        benchmark::DoNotOptimize(value);
    }
}

/// A second thread, which sleeps: while a process has only one, the C library spares its locks the
/// atomic instructions that they take in any program with threads.
class Sleeper {
  public:
    ~Sleeper() {
        GMessage wake{};
        wake.number = G_MESSAGE_QUIT;
        GPIHostPostMessage(&wake);
        thread_.join();
    }

  private:
    std::thread thread_{[] {
        GMessage message;
        GPIHostWaitMessage(&message, kNoLimit);
    }};
};

BENCHMARK(postAndTake)->Name("event/post and take/wait")->Arg(kNoWait)->Arg(kNoLimit);
BENCHMARK(checkTimers)->Name("timer/check 50");
BENCHMARK(readChecked)->Name("memory/bounds-checked load");
BENCHMARK(readTyped)->Name("memory/GMGMemGetLong/block")->Arg(0)->Arg(128)->Arg(255);
BENCHMARK(writeTyped)->Name("memory/GMGMemSetLong/block")->Arg(0)->Arg(128)->Arg(255);

int run(int argc, char** argv) {
    if (!startMeasuring(argc, argv)) {
        return EXIT_FAILURE;
    }
    GetGPIFunction();
    const Sleeper sleeper;
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}

} // namespace
} // namespace bench

int main(int argc, char** argv) {
    return bench::run(argc, argv);
}
