// The position: large where the tool is in the work, smaller whatever else one looks for beside it.
#include "parts/axis_card.h"
#include "parts/value_card.h"
#include "screens/screens.h"

#include <string_view>

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::CycleStart, u"CycleStart", PANEL_ICONS_CYCLE_START},
    {Action::FeedHold, u"FeedHold", PANEL_ICONS_FEED_HOLD},
    {Action::SingleBlock, u"SingleBlock", PANEL_ICONS_SINGLE_BLOCK},
    {Action::Reset, u"Reset", PANEL_ICONS_RESET},
    {Action::NextAxis, u"NextAxis", PANEL_ICONS_HANDWHEEL},
    {Action::JogMinus, u"JogMinus", PANEL_ICONS_JOG_MINUS},
    {Action::JogPlus, u"JogPlus", PANEL_ICONS_JOG_PLUS},
    {Action::JogStep, u"JogStep", PANEL_ICONS_RAPID},
    {Action::ZeroRelative, u"ZeroRelative", PANEL_ICONS_OFFSETS},
};

constexpr Word kSideTitles[] = {u"Relative", u"DistanceToGo", u"MachinePosition"};
constexpr Word kDetailNames[] = {u"Feed", u"Spindle", u"Modal", u"Jog", u"RunTime"};

class PositionScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"Position"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void open() override;
    void update() override;
    void draw(const GRect& area) const override;
    bool act(Action action) override;

  private:
    enum Side : uint8_t { Relative, ToGo, Machine, kSides };
    enum Detail : uint8_t { Feed, Spindle, Modal, Jog, Time, kDetails };

    void layOutSides(GRect area);
    void showDetails();

    AxisCard work_;
    std::array<AxisCard, kSides> sides_;
    ValueCard details_{kDetailNames};
};

void PositionScreen::open() {
    const Measures& m = measures();
    GRect area = inside(context_.work, m.margin);
    layOutSides(takeRight(area, 14 * m.width(Face::Number) + 2 * m.padding));
    takeRight(area, m.margin);
    const GRect lower = takeBottom(area, kDetails * (m.height(Face::Text) + m.padding) +
                                             m.height(Face::Label) + 2 * m.padding);
    details_.layOut(lower, m, 9, Align::Left);
    takeBottom(area, m.margin);
    work_.layOut(area, m, Face::Large);
    update();
}

void PositionScreen::layOutSides(GRect area) {
    const Measures& m = measures();
    const int height = (heightOf(area) - (kSides - 1) * m.margin) / kSides;
    for (AxisCard& side : sides_) {
        side.layOut(takeTop(area, height), m, Face::Number);
        takeTop(area, m.margin);
    }
}

void PositionScreen::update() {
    const Snapshot& now = context_.now;
    Place relative{};
    for (size_t axis = 0; axis < kAxes; ++axis) {
        relative[axis] = now.work[axis] - context_.relativeZero[axis];
    }
    work_.show(now, now.work, context_.damage);
    sides_[Relative].show(now, relative, context_.damage);
    sides_[ToGo].show(now, now.toGo, context_.damage);
    sides_[Machine].show(now, now.machine, context_.damage);
    showDetails();
}

void PositionScreen::showDetails() {
    const Snapshot& now = context_.now;
    const double unit = now.inches ? 25.4 : 1.0;
    const int decimals = now.inches ? 1 : 0;
    Damage& damage = context_.damage;
    details_.show(
        Feed,
        joined({fixed(now.feed / unit, decimals), u" / ",
                fixed(now.programmedFeed / unit, decimals),
                now.inches ? u" inch/min  " : u" mm/min  ", wholeText(now.overrides[0]), u" %"}),
        damage);
    details_.show(Spindle,
                  joined({wholeText(now.spindle), u" / ", wholeText(now.programmedSpindle),
                          u" /min  ", wholeText(now.overrides[2]), u" %"}),
                  damage);
    std::u16string codes;
    for (const double code : now.codes) {
        codes += joined({codes.empty() ? u"G" : u" G", shortest(code)});
    }
    details_.show(Modal, codes, damage);
    const double step = kJogSteps[context_.jogStep];
    details_.show(Jog,
                  joined({std::u16string_view(&kAxisNames[context_.axis], 1), u"  ",
                          step == 0.0 ? text(u"Continuous") : joined({shortest(step), u" mm"})}),
                  damage);
    details_.show(Time, spanText(now.runTime), damage);
}

bool PositionScreen::act(Action action) {
    if (action != Action::ZeroRelative) {
        return false;
    }
    context_.relativeZero = context_.now.work;
    return true;
}

void PositionScreen::draw(const GRect& area) const {
    work_.draw(painter(), area, text(u"WorkPosition"));
    for (size_t i = 0; i < kSides; ++i) {
        sides_[i].draw(painter(), area, text(kSideTitles[i]));
    }
    details_.draw(painter(), context_.texts, area, u"Details");
}

} // namespace

std::unique_ptr<Screen> makePositionScreen(Context& context) {
    return std::make_unique<PositionScreen>(context);
}

} // namespace panel
