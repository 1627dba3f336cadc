// Measures the library beside its peers: every workload by every contender that has it, in one
// process, on one core. Takes Google Benchmark's own arguments; scripts/bench sets them.
#include "check.h"
#include "contender.h"
#include "core.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

namespace bench {
namespace {

void measure(benchmark::State& state, Contender& contender, const Workload& workload,
             Canvas& canvas, const std::string& note) {
    const Shapes shapes = shapesOf(workload);
    canvas.reset();
    const Pass pass = contender.prepare(workload, shapes, canvas);
    pass();
    const auto count = static_cast<benchmark::IterationCount>(shapes.count());
    while (state.KeepRunningBatch(count)) {
        pass();
        benchmark::ClobberMemory();
    }
    state.SetLabel(note);
}

/// False when a contender draws another picture than the library.
bool registerAll(const std::vector<std::unique_ptr<Contender>>& contenders,
                 const std::vector<Workload>& workloads, Canvas& canvas) {
    bool sameWork = true;
    for (const Workload& workload : workloads) {
        for (const auto& contender : contenders) {
            if (!contender->prepare(workload, shapesOf(workload), canvas)) {
                continue;
            }
            const std::string name = nameOf(workload) + '/' + std::string(contender->name());
            const Verdict verdict = compare(*contenders.front(), *contender, workload, canvas);
            if (!verdict.sameWork) {
                std::fprintf(stderr, "%s: %s\n", name.c_str(), verdict.note.c_str());
                sameWork = false;
            }
            benchmark::RegisterBenchmark(name.c_str(),
                                         [&contender = *contender, &workload, &canvas,
                                          note = verdict.note](benchmark::State& state) {
                                             measure(state, contender, workload, canvas, note);
                                         });
        }
    }
    return sameWork;
}

int run(int argc, char** argv) {
    if (!startMeasuring(argc, argv)) {
        return EXIT_FAILURE;
    }
    Canvas canvas;
    const auto contenders = makeContenders();
    const auto workloads = allWorkloads();
    if (!registerAll(contenders, workloads, canvas)) {
        return EXIT_FAILURE;
    }
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}

} // namespace
} // namespace bench

int main(int argc, char** argv) {
    bench::keepQtFromAvx2(argv);
    return bench::run(argc, argv);
}
