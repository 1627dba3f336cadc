#include "measure.h"

#include <gpi/host.h>

#include <algorithm>
#include <iomanip>
#include <string>
#include <vector>

namespace panel {
namespace {

constexpr int kTimes = 41;
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

std::string narrow(const std::u16string& text) {
    return {text.begin(), text.end()};
}

} // namespace

void measure(Panel& panel, std::ostream& out) {
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
