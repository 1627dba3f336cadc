// The start page: what is left to do before the machine can run.
#include "parts/card.h"
#include "parts/readout.h"
#include "screens/screens.h"
#include "text/format.h"

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::PowerUp, u"PowerUp", PANEL_ICONS_LOCK},
    {Action::Home, u"Reference", PANEL_ICONS_HOME},
    {Action::ShowPosition, u"Position", PANEL_ICONS_HANDWHEEL},
    {Action::ShowProgram, u"Program", PANEL_ICONS_PROGRAM},
    {Action::CycleStart, u"CycleStart", PANEL_ICONS_CYCLE_START},
    {Action::Reset, u"Reset", PANEL_ICONS_RESET},
    {Action::ShowSettings, u"Language", PANEL_ICONS_LANGUAGE},
    {Action::ShowHelp, u"Help", PANEL_ICONS_HELP},
    {Action::EmergencyStop, u"EmergencyKey", PANEL_ICONS_EMERGENCY_STOP},
};

/// A step on the way to a machine that runs.
struct Step {
    Word text;
    bool (*done)(const Snapshot& now);
};

constexpr Step kSteps[] = {
    {u"StepControl", [](const Snapshot& now) { return now.online; }},
    {u"StepEmergency", [](const Snapshot& now) { return !now.emergency; }},
    {u"StepPower", [](const Snapshot& now) { return now.power; }},
    {u"StepReference", [](const Snapshot& now) { return now.homed; }},
    {u"StepProgram", [](const Snapshot& now) { return !now.program.empty(); }},
};
constexpr size_t kStepCount = std::size(kSteps);

class StartScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"Start"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void open() override;
    void update() override;
    void draw(const GRect& area) const override;

  private:
    void drawMark(const GRect& area) const;

    GRect head_{};
    GRect mark_{};
    Card steps_;
    std::array<Readout, kStepCount> signs_;
    std::array<Readout, kStepCount> names_;
    Readout control_;
};

void StartScreen::open() {
    const Measures& m = measures();
    GRect work = inside(context_.work, m.margin);
    head_ = takeTop(work, heightOf(work) * 2 / 5);
    takeTop(work, m.margin);
    mark_ = inside(head_, 2 * m.padding);
    mark_.right = static_cast<int16_t>(mark_.left + heightOf(mark_) - 1);
    control_.rect = inside(head_, 2 * m.padding);
    control_.rect = takeBottom(control_.rect, 2 * m.height(Face::Text));
    control_.rect.left = static_cast<int16_t>(mark_.right + 4 * m.padding);
    control_.look = {Face::Text, Ink::BarFaint, Align::Left};
    control_.text = readText(G_NC_CONTROL_NAME, 0);

    steps_.rect = work;
    GRect content = steps_.content(m);
    const int rowHeight = heightOf(content) / static_cast<int>(kStepCount);
    for (size_t i = 0; i < kStepCount; ++i) {
        GRect row = takeTop(content, rowHeight);
        GRect sign = takeLeft(row, 12 * m.width(Face::Text));
        takeLeft(row, m.width(Face::Text));
        signs_[i].rect = inside(sign, (rowHeight - m.height(Face::Label) - 6) / 2);
        signs_[i].rect.left = sign.left;
        signs_[i].rect.right = sign.right;
        signs_[i].look = {Face::Label, Ink::SignText, Align::Centre};
        names_[i].rect = row;
        names_[i].look = {Face::Text, Ink::Text, Align::Left};
        names_[i].text = text(kSteps[i].text);
    }
    update();
}

void StartScreen::update() {
    bool before = true;
    for (size_t i = 0; i < kStepCount; ++i) {
        const bool done = kSteps[i].done(context_.now);
        const bool next = before && !done;
        const Ink plate = done ? Ink::Good : next ? Ink::Caution : Ink::SignQuiet;
        signs_[i].show(text(done ? u"Done" : next ? u"Next" : u"Waiting"), plate, context_.damage);
        before = before && done;
    }
}

void StartScreen::draw(const GRect& area) const {
    if (meet(head_, area)) {
        const Measures& m = measures();
        painter().plate(head_, Ink::Bar, Ink::Bar);
        drawMark(mark_);
        GRect title = inside(head_, 2 * m.padding);
        title.left = control_.rect.left;
        title.bottom = static_cast<int16_t>(control_.rect.top - 1);
        painter().text(title, {Face::Title, Ink::BarText, Align::Left}, text(u"ProductName"));
        control_.draw(painter(), area);
    }
    steps_.draw(painter(), area, text(u"StartSteps"));
    for (size_t i = 0; i < kStepCount; ++i) {
        signs_[i].draw(painter(), area);
        names_[i].draw(painter(), area);
    }
}

/// A mill's cut in the round: rings, and the spiral of a tool on its way in.
void StartScreen::drawMark(const GRect& area) const {
    GDrawHandle* const handle = painter().handle();
    const int size = heightOf(area);
    const auto wide = static_cast<int16_t>(std::max(2, size / 24));
    GDSetPenSize(handle, wide, wide);
    GDSetFillPattern(handle, G_FILL_NONE);
    constexpr Ink kRings[] = {Ink::Accent, Ink::PathDone, Ink::YAxis, Ink::Tool};
    int border = wide;
    int16_t start = 900;
    for (const Ink ink : kRings) {
        const GRect ring = inside(area, border);
        GDSetPenColor(handle, painter().color(ink));
        GDDrawArc(handle, &ring, start, static_cast<int16_t>(start - 600));
        border += size / 9;
        start = static_cast<int16_t>(start + 700);
    }
    GDSetPenSize(handle, 1, 1);
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, G_FILL_FORE, painter().color(Ink::BarText), G_NO_COLOR);
    const GRect tip = inside(area, border);
    GDDrawOval(handle, &tip);
}

} // namespace

std::unique_ptr<Screen> makeStartScreen(Context& context) {
    return std::make_unique<StartScreen>(context);
}

} // namespace panel
