#include "core.h"

#include <benchmark/benchmark.h>

#include <sched.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace bench {
namespace {

int pinToOneCore() {
    cpu_set_t allowed;
    CPU_ZERO(&allowed);
    sched_getaffinity(0, sizeof allowed, &allowed);
    int core = CPU_SETSIZE - 1;
    while (core > 0 && !CPU_ISSET(core, &allowed)) {
        --core;
    }
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(core, &one);
    return sched_setaffinity(0, sizeof one, &one) == 0 ? core : -1;
}

/// As the kernel names it; empty where it does not.
std::string processorName() {
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);) {
        if (line.starts_with("model name")) {
            return line.substr(line.find(':') + 2);
        }
    }
    return {};
}

} // namespace

bool startMeasuring(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return false;
    }
    benchmark::AddCustomContext("core", std::to_string(pinToOneCore()));
    benchmark::AddCustomContext("processor", processorName());
    benchmark::AddCustomContext("compiler", BENCH_COMPILER);
    benchmark::AddCustomContext("build", BENCH_BUILD);
    return true;
}

void keepQtFromAvx2(char** argv) {
    constexpr const char* kName = "QT_NO_CPU_FEATURE";
    if (std::getenv(kName) == nullptr) {
        setenv(kName, "avx2", 1);
        execv("/proc/self/exe", argv);
    }
}

} // namespace bench
