#include "measure.h"

#include <gpi/host.h>

#include <sys/resource.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iomanip>
#include <string>
#include <thread>
#include <vector>

namespace panel {
namespace {

constexpr int kTimes = 41;
constexpr int kIdleSeconds = 10;
constexpr uint32_t kSecond = 1000;

void press(Panel& panel, int32_t key) {
    GPIHostFeedKey(key, 1);
    panel.handlePending();
    GPIHostFeedKey(key, 0);
    panel.handlePending();
}

void pass(Panel& panel, uint32_t milliseconds) {
    GPIHostStepClock(milliseconds);
    GECheckTimer();
    panel.handlePending();
}

/// What was drawn last.
struct Drawn {
    int32_t micros;
    int32_t pixels;
};

/// Does something several times, and tells how long drawing took each time.
template <class Do>
void report(Panel& panel, std::ostream& out, const std::string& name, Do action) {
    const Counters& counters = panel.context().counters;
    std::vector<Drawn> drawn;
    for (int i = 0; i < kTimes; ++i) {
        const int32_t pixels = counters[Counters::Pixels];
        action();
        drawn.push_back({counters[Counters::LastMicros], counters[Counters::Pixels] - pixels});
    }
    std::sort(drawn.begin(), drawn.end(),
              [](const Drawn& a, const Drawn& b) { return a.micros < b.micros; });
    const int bytes = GDGetVram(panel.context().painter.handle())->bitsPerPixel / 8;
    out << std::left << std::setw(24) << name << std::right << std::setw(8)
        << drawn[kTimes / 2].micros << std::setw(8) << drawn.back().micros << std::setw(10)
        << drawn[kTimes / 2].pixels * bytes << '\n';
}

/// The words behind a name in a file of the kernel's.
std::string wordsBehind(const std::string& name, const char* path) {
    std::ifstream file(path);
    std::string line;
    while (std::getline(file, line)) {
        if (line.compare(0, name.size(), name) == 0) {
            return line.substr(name.size());
        }
    }
    return "";
}

/// Milliseconds from the process's start to now, in steps of 10: so the kernel counts.
long millisecondsSinceStart() {
    constexpr int kBehindName = 20; // fields from behind the program's name to its start
    std::ifstream stat("/proc/self/stat");
    std::string field;
    std::getline(stat, field, ')');
    for (int i = 0; i < kBehindName; ++i) {
        stat >> field;
    }
    const long ticks = sysconf(_SC_CLK_TCK);
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return now.tv_sec * 1000 + now.tv_nsec / 1'000'000 - std::stol(field) * 1000 / ticks;
}

/// Of all threads of this process, in microseconds.
int64_t processorTime() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto micros = [](const timeval& time) {
        return int64_t{time.tv_sec} * 1'000'000 + time.tv_usec;
    };
    return micros(used.ru_utime) + micros(used.ru_stime);
}

std::string narrow(const std::u16string& text) {
    return {text.begin(), text.end()};
}

} // namespace

void measureStart(std::ostream& out) {
    out << "first frame " << millisecondsSinceStart() << " ms after the start, "
        << processorTime() / 1000 << " ms of them at work; resident"
        << wordsBehind("VmRSS:", "/proc/self/status") << '\n';
}

void measureIdle(Panel& panel, std::ostream& out) {
    const int64_t before = processorTime();
    std::thread timer([] {
        std::this_thread::sleep_for(std::chrono::seconds(kIdleSeconds));
        GEventMsg quit;
        GESetEvent(*GECreateEventMessage(&quit, G_EVENT_QUIT, kPanel, 0, 0), 0);
    });
    panel.run();
    timer.join();
    const double share = static_cast<double>(processorTime() - before) / (kIdleSeconds * 1e6);
    out << "idle, the clock going: " << std::fixed << std::setprecision(2) << share * 100
        << " % of a core\n";
}

void measureDrawing(Panel& panel, std::ostream& out) {
    out << "                          median longest     bytes\n"
           "                              us      us   flushed\n";
    press(panel, GPI_KEY_F1); // power
    pass(panel, kSecond);
    press(panel, GPI_KEY_F1 + 1); // reference
    pass(panel, 5 * kSecond);
    for (int32_t key = GPI_KEY_F1; key < GPI_KEY_F1 + 9; ++key) {
        press(panel, GPI_KEY_F1 + 9); // the row of screens
        press(panel, key);
        const std::string title = narrow(panel.context().texts[panel.screen().title()]);
        report(panel, out, title, [&] { panel.redraw(); });
    }
    press(panel, GPI_KEY_F1 + 9);
    press(panel, GPI_KEY_F1); // position
    report(panel, out, "the clock", [&] { pass(panel, kSecond); });
    report(panel, out, "the jog axis", [&] { press(panel, 'X'); });
    GPIHostFeedKey(GPI_KEY_PAD_ADD, 1);
    panel.handlePending();
    report(panel, out, "an axis that moves", [&] { pass(panel, 50); });
    GPIHostFeedKey(GPI_KEY_PAD_ADD, 0);
}

} // namespace panel
