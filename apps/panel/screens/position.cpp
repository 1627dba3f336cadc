// The position: large where the tool is in the work, smaller whatever else one looks for beside it.
#include "parts/card.h"
#include "parts/readout.h"
#include "screens/screens.h"
#include "text/format.h"

#include <limits>

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

/// Three values, one for each axis.
using AxisReadouts = std::array<Readout, kAxes>;

/// A card of a value for each axis in the smaller digits.
struct AxisCard {
    Word title;
    Card card;
    AxisReadouts values;
};

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

    void layOutLarge(GRect area);
    void layOutSide(AxisCard& side, const GRect& area);
    void layOutDetails();
    void show(AxisReadouts& values, const Place& place);
    void showDetails();
    void drawAxisNames(const AxisReadouts& values, const GRect& card, Face face,
                       const GRect& area) const;

    Card large_;
    AxisReadouts work_;
    std::array<AxisCard, kSides> sides_{
        {{u"Relative", {}, {}}, {u"DistanceToGo", {}, {}}, {u"MachinePosition", {}, {}}}};
    Card details_;
    std::array<Readout, kDetails> values_;
};

constexpr Word kDetailNames[] = {u"Feed", u"Spindle", u"Modal", u"Jog", u"RunTime"};

void PositionScreen::open() {
    const Measures& m = measures();
    GRect work = inside(context_.work, m.margin);
    GRect right = takeRight(work, 15 * m.width(Face::Number) + 2 * m.padding);
    takeRight(work, m.margin);
    const int rows = heightOf(right);
    for (size_t i = 0; i < kSides; ++i) {
        const int height = (rows - 2 * m.margin) / static_cast<int>(kSides);
        layOutSide(sides_[i], i + 1 < kSides ? takeTop(right, height) : right);
        takeTop(right, m.margin);
    }
    GRect lower = takeBottom(work, kDetails * (m.height(Face::Text) + m.padding) +
                                       m.height(Face::Label) + 2 * m.padding);
    takeBottom(work, m.margin);
    layOutLarge(work);
    details_.rect = lower;
    layOutDetails();
    update();
}

void PositionScreen::layOutLarge(GRect area) {
    const Measures& m = measures();
    large_.rect = area;
    GRect content = large_.content(m);
    const int height = heightOf(content) / static_cast<int>(kAxes);
    for (Readout& value : work_) {
        value.rect = takeTop(content, height);
        takeLeft(value.rect, 2 * m.width(Face::Large));
        takeRight(value.rect, m.padding);
        value.look = {Face::Large, Ink::Digits, Align::Right};
    }
}

void PositionScreen::layOutSide(AxisCard& side, const GRect& area) {
    const Measures& m = measures();
    side.card.rect = area;
    GRect content = side.card.content(m);
    const int height = heightOf(content) / static_cast<int>(kAxes);
    for (Readout& value : side.values) {
        value.rect = takeTop(content, height);
        takeLeft(value.rect, 3 * m.width(Face::Number));
        takeRight(value.rect, m.padding);
        value.look = {Face::Number, Ink::Text, Align::Right};
    }
}

void PositionScreen::layOutDetails() {
    const Measures& m = measures();
    GRect content = details_.content(m);
    const int height = heightOf(content) / kDetails;
    for (Readout& value : values_) {
        value.rect = takeTop(content, height);
        takeLeft(value.rect, 9 * m.width(Face::Text));
        takeRight(value.rect, m.padding);
        value.look = {Face::Text, Ink::Text, Align::Left};
    }
}

void PositionScreen::update() {
    const Snapshot& now = context_.now;
    Place relative{};
    for (size_t axis = 0; axis < kAxes; ++axis) {
        relative[axis] = now.work[axis] - context_.relativeZero[axis];
    }
    show(work_, now.work);
    show(sides_[Relative].values, relative);
    show(sides_[ToGo].values, now.toGo);
    show(sides_[Machine].values, now.machine);
    showDetails();
}

void PositionScreen::show(AxisReadouts& values, const Place& place) {
    const Snapshot& now = context_.now;
    for (size_t axis = 0; axis < kAxes; ++axis) {
        values[axis].show(now.online ? lengthText(place[axis], now.inches) : u"-----.---",
                          context_.damage);
    }
}

void PositionScreen::showDetails() {
    const Snapshot& now = context_.now;
    const double unit = now.inches ? 25.4 : 1.0;
    const std::u16string perMinute = now.inches ? u" inch/min  " : u" mm/min  ";
    const int decimals = now.inches ? 1 : 0;
    Damage& damage = context_.damage;
    values_[Feed].show(joined({fixed(now.feed / unit, decimals), u" / ",
                               fixed(now.programmedFeed / unit, decimals), perMinute,
                               wholeText(now.overrides[0]), u" %"}),
                       damage);
    values_[Spindle].show(joined({wholeText(now.spindle), u" / ", wholeText(now.programmedSpindle),
                                  u" /min  ", wholeText(now.overrides[2]), u" %"}),
                          damage);
    std::u16string codes;
    for (const double code : now.codes) {
        codes += joined({codes.empty() ? u"G" : u" G", shortest(code)});
    }
    values_[Modal].show(codes, damage);
    const double step = kJogSteps[context_.jogStep];
    values_[Jog].show(
        joined({std::u16string_view(&kAxisNames[context_.axis], 1), u"  ",
                step == 0.0 ? text(u"Continuous") : joined({shortest(step), u" mm"})}),
        damage);
    values_[Time].show(spanText(now.runTime), damage);
}

bool PositionScreen::act(Action action) {
    if (action != Action::ZeroRelative) {
        return false;
    }
    context_.relativeZero = context_.now.work;
    return true;
}

void PositionScreen::draw(const GRect& area) const {
    large_.draw(painter(), area, text(u"WorkPosition"));
    drawAxisNames(work_, large_.rect, Face::Large, area);
    for (const AxisCard& side : sides_) {
        side.card.draw(painter(), area, text(side.title));
        drawAxisNames(side.values, side.card.rect, Face::Number, area);
    }
    details_.draw(painter(), area, text(u"Details"));
    for (size_t i = 0; i < kDetails; ++i) {
        GRect name = values_[i].rect;
        name.right = static_cast<int16_t>(name.left - 1);
        name.left = static_cast<int16_t>(details_.rect.left + measures().padding);
        if (meet(name, area)) {
            painter().text(name, {Face::Text, Ink::TextFaint, Align::Left}, text(kDetailNames[i]));
        }
        values_[i].draw(painter(), area);
    }
}

/// Draws values, and the names of their axes before them.
void PositionScreen::drawAxisNames(const AxisReadouts& values, const GRect& card, Face face,
                                   const GRect& area) const {
    for (size_t axis = 0; axis < kAxes; ++axis) {
        GRect name = values[axis].rect;
        name.right = static_cast<int16_t>(name.left - 1);
        name.left = static_cast<int16_t>(card.left + measures().padding);
        if (meet(name, area)) {
            painter().text(name, {face, Ink::Accent, Align::Left},
                           std::u16string(1, kAxisNames[axis]));
        }
        values[axis].draw(painter(), area);
    }
}

} // namespace

std::unique_ptr<Screen> makePositionScreen(Context& context) {
    return std::make_unique<PositionScreen>(context);
}

} // namespace panel
