// What the panel itself is at.
#include "parts/card.h"
#include "parts/readout.h"
#include "screens/screens.h"
#include "text/format.h"

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::ShowDamage, u"ShowDamage", PANEL_ICONS_GRAPHIC},
    {Action::ClearCounters, u"ClearCounters", PANEL_ICONS_CLEAR},
};

struct Row {
    Word name;
    Counters::Counter counter;
    const char16_t* unit;
};

constexpr Row kRows[] = {
    {u"EventsOfSecond", Counters::EventsOfSecond, u"/s"},
    {u"Events", Counters::Events, u""},
    {u"Wakeups", Counters::Wakeups, u""},
    {u"RedrawnAreas", Counters::Redraws, u""},
    {u"RedrawnPixels", Counters::Pixels, u"px"},
    {u"LastRedraw", Counters::LastMicros, u"µs"},
    {u"WorstRedraw", Counters::WorstMicros, u"µs"},
};
constexpr size_t kCount = std::size(kRows);

class DiagnosisScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"DiagnosisScreen"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void open() override;
    void update() override;
    void draw(const GRect& area) const override;
    bool act(Action action) override;

  private:
    Card card_;
    std::array<GRect, kCount> names_{};
    std::array<Readout, kCount> values_;
    std::array<GRect, kCount> units_{};
    uint32_t second_ = 0; ///< when they were shown last
};

void DiagnosisScreen::open() {
    const Measures& m = measures();
    card_.rect = inside(context_.work, m.margin);
    GRect content = card_.content(m);
    const int height = heightOf(content) / static_cast<int>(kCount + 1);
    for (size_t i = 0; i < kCount; ++i) {
        GRect row = takeTop(content, height);
        names_[i] = takeLeft(row, 28 * m.width(Face::Text));
        values_[i].rect = takeLeft(row, 14 * m.width(Face::Number));
        values_[i].look = {Face::Number, Ink::Digits, Align::Right};
        takeLeft(row, m.padding);
        units_[i] = row;
    }
    second_ = 0;
    update();
}

/// Once a second: values that change with every redraw would cause the next one.
void DiagnosisScreen::update() {
    const uint32_t now = GETime(nullptr);
    if (now == second_) {
        return;
    }
    second_ = now;
    for (size_t i = 0; i < kCount; ++i) {
        values_[i].show(wholeText(context_.counters[kRows[i].counter]), context_.damage);
    }
}

bool DiagnosisScreen::act(Action action) {
    if (action != Action::ClearCounters) {
        return false;
    }
    context_.counters.clear();
    second_ = 0;
    return true;
}

void DiagnosisScreen::draw(const GRect& area) const {
    card_.draw(painter(), area, text(u"DiagnosisTitle"));
    for (size_t i = 0; i < kCount; ++i) {
        if (meet(names_[i], area)) {
            painter().text(names_[i], {Face::Text, Ink::Text, Align::Left}, text(kRows[i].name));
        }
        values_[i].draw(painter(), area);
        if (meet(units_[i], area)) {
            painter().text(units_[i], {Face::Text, Ink::TextFaint, Align::Left}, kRows[i].unit);
        }
    }
}

} // namespace

std::unique_ptr<Screen> makeDiagnosisScreen(Context& context) {
    return std::make_unique<DiagnosisScreen>(context);
}

} // namespace panel
