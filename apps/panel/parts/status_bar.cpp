#include "parts/status_bar.h"

#include "text/format.h"

namespace panel {
namespace {

struct Sign {
    Word word;
    Ink ground;
};

Sign modeSign(int32_t mode) {
    switch (mode) {
    case G_NC_MODE_AUTO:
        return {u"ModeAuto", Ink::Accent};
    case G_NC_MODE_MDI:
        return {u"ModeMdi", Ink::Accent};
    default:
        return {u"ModeManual", Ink::Accent};
    }
}

Sign stateSign(const Snapshot& now) {
    if (!now.online) {
        return {u"StateOffline", Ink::Fault};
    }
    if (now.emergency) {
        return {u"StateEmergency", Ink::Fault};
    }
    switch (now.state) {
    case G_NC_STATE_IDLE:
        return {u"StateIdle", Ink::SignQuiet};
    case G_NC_STATE_RUNNING:
        return {u"StateRunning", Ink::Good};
    case G_NC_STATE_HELD:
        return {u"StateHeld", Ink::Caution};
    case G_NC_STATE_ALARM:
        return {u"StateAlarm", Ink::Fault};
    default:
        return {u"StateOff", Ink::SignQuiet};
    }
}

std::u16string percent(double value) {
    return joined({wholeText(value), u"%"});
}

} // namespace

StatusBar::StatusBar(Context& context, const GRect& area) : context_(context), area_(area) {
    layOut(area);
}

/// Places are counted in characters, so that they follow from the font.
void StatusBar::layOut(const GRect& area) {
    const Measures& measures = context_.painter.measures();
    const int margin = measures.margin;
    const int cell = measures.width(Face::Text);
    GRect upper = inside(area, 2);
    upper.left = static_cast<int16_t>(upper.left + margin);
    upper.right = static_cast<int16_t>(upper.right - margin);
    GRect lower = takeBottom(upper, heightOf(upper) / 2);

    parts_[Clock].rect = takeRight(upper, 8 * cell);
    parts_[Clock].look = {Face::Text, Ink::BarText, Align::Right};
    takeRight(upper, 2 * cell);
    parts_[Title].rect = takeLeft(upper, 24 * cell);
    parts_[Title].look = {Face::Text, Ink::BarText, Align::Left};
    parts_[Program].rect = upper;
    parts_[Program].look = {Face::Text, Ink::BarFaint, Align::Right};

    for (const Part sign : {Mode, State}) {
        parts_[sign].rect = takeLeft(lower, 11 * cell);
        takeLeft(lower, cell);
        parts_[sign].look = {Face::Label, Ink::SignText, Align::Centre};
    }
    parts_[Unit].rect = takeRight(lower, 4 * cell);
    parts_[Tool].rect = takeRight(lower, 5 * cell);
    const int half = widthOf(lower) / 2;
    parts_[Feed].rect = takeLeft(lower, half);
    parts_[Spindle].rect = lower;
    for (const Part value : {Feed, Spindle, Tool, Unit}) {
        parts_[value].look = {Face::Text, Ink::BarText, Align::Right};
    }
}

void StatusBar::update() {
    const Snapshot& now = context_.now;
    show(Title, context_.texts[title_]);
    show(Program, fileName(now.program));
    showMode();
    showState();
    const double unit = now.inches ? 25.4 : 1.0;
    show(Feed, joined({u"F", fixed(now.feed / unit, now.inches ? 1 : 0), u"  ",
                       percent(now.overrides[0])}));
    show(Spindle, joined({u"S", wholeText(now.spindle), u"  ", percent(now.overrides[2])}));
    show(Tool, joined({u"T", wholeText(now.tool)}));
    show(Unit, now.inches ? u"inch" : u"mm");
}

void StatusBar::showMode() {
    const Sign sign = modeSign(context_.now.mode);
    parts_[Mode].show(context_.texts[sign.word], sign.ground, context_.damage);
}

void StatusBar::showState() {
    const Sign sign = stateSign(context_.now);
    parts_[State].show(context_.texts[sign.word], sign.ground, context_.damage);
}

void StatusBar::tick(uint32_t time) {
    show(Clock, clockText(time));
}

void StatusBar::draw(const GRect& area) const {
    if (!meet(area_, area)) {
        return;
    }
    context_.painter.fill(area_, Ink::Bar);
    for (const Readout& part : parts_) {
        part.draw(context_.painter, area);
    }
}

} // namespace panel
