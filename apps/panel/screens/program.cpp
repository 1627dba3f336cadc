// The program: its text with the line that runs, or the list of programs to choose from.
#include "parts/axis_card.h"
#include "parts/list.h"
#include "parts/value_card.h"
#include "screens/screens.h"

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::CycleStart, u"CycleStart", PANEL_ICONS_CYCLE_START},
    {Action::FeedHold, u"FeedHold", PANEL_ICONS_FEED_HOLD},
    {Action::SingleBlock, u"SingleBlock", PANEL_ICONS_SINGLE_BLOCK},
    {Action::Reset, u"Reset", PANEL_ICONS_RESET},
    {Action::OpenProgram, u"OpenProgram", PANEL_ICONS_PROGRAM},
    {Action::FollowProgram, u"FollowProgram", PANEL_ICONS_TOOL},
    {Action::BlockSkip, u"BlockSkip", PANEL_ICONS_BLOCK_SKIP},
    {Action::OptionalStop, u"OptionalStop", PANEL_ICONS_OPTIONAL_STOP},
    {Action::DryRun, u"DryRun", PANEL_ICONS_DRY_RUN},
};

constexpr Word kDetailNames[] = {u"ProgramLine", u"Tool", u"RunTime"};

class ProgramScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"ProgramScreen"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void open() override;
    void update() override;
    void draw(const GRect& area) const override;
    bool act(Action action) override;
    bool isOn(Action action) const override;
    bool key(int32_t key) override;
    void pointer(PointerAction action, GPoint at) override;

  private:
    enum Detail : uint8_t { Line, Tool, Time, kDetails };

    void updateText();
    void follow();
    void choose(bool choosing);
    void updateNames();
    void openChosen();
    bool scroll(int32_t first);
    void drawLine(int32_t row, GRect place) const;
    void drawName(int32_t row, const GRect& place) const;

    Card card_;
    List text_;
    int32_t shown_ = 0; ///< the program, as Context counts them
    int32_t line_ = 0;  ///< the one that is shown as running, from 1
    bool follows_ = true;
    bool choosing_ = false;
    List names_;
    std::vector<std::u16string> own_; ///< names of the panel's programs
    std::vector<StoredProgram> programs_;
    int32_t chosen_ = 0;
    std::optional<GPoint> drag_; ///< where the pointer took hold
    int32_t dragFirst_ = 0;
    AxisCard position_;
    AxisCard toGo_;
    ValueCard details_{kDetailNames};
};

void ProgramScreen::open() {
    const Measures& m = measures();
    GRect area = inside(context_.work, m.margin);
    GRect right = takeRight(area, 12 * m.width(Face::Number) + 3 * m.padding);
    takeRight(area, m.margin);
    const int third = (heightOf(right) - 2 * m.margin) / 3;
    position_.layOut(takeTop(right, third), m, Face::Number);
    takeTop(right, m.margin);
    toGo_.layOut(takeTop(right, third), m, Face::Number);
    takeTop(right, m.margin);
    details_.layOut(right, m, 5, Align::Right);

    card_.rect = area;
    const int rowHeight = m.height(Face::Text) + m.padding / 2;
    text_.layOut(card_.content(m), rowHeight);
    names_.layOut(card_.content(m), rowHeight + m.padding);
    text_.setCount(context_.program.lines());
    update();
}

void ProgramScreen::update() {
    const Snapshot& now = context_.now;
    position_.show(now, now.work, context_.damage);
    toGo_.show(now, now.toGo, context_.damage);
    details_.show(Tool, joined({u"T", wholeText(now.tool)}), context_.damage);
    details_.show(Line, joined({wholeText(now.line), u" / ", wholeText(context_.program.lines())}),
                  context_.damage);
    details_.show(Time, spanText(now.runTime), context_.damage);
    if (choosing_) {
        updateNames();
    } else {
        updateText();
    }
}

void ProgramScreen::updateText() {
    if (shown_ != context_.programsRead) {
        shown_ = context_.programsRead;
        text_.setCount(context_.program.lines());
        follows_ = true;
        context_.damage.add(card_.rect);
    }
    if (line_ != context_.now.line) {
        for (const int32_t changed : {line_, context_.now.line}) {
            if (text_.shows(changed - 1)) {
                context_.damage.add(text_.place(changed - 1));
            }
        }
        line_ = context_.now.line;
    }
    if (follows_) {
        follow();
    }
}

/// Turns the page before the line that runs leaves it, so that the next lines are always in view.
void ProgramScreen::follow() {
    constexpr int32_t kBefore = 2; // lines above it on the new page
    constexpr int32_t kAhead = 3;  // lines below it that are always in view
    const int32_t row = std::max(line_ - 1, 0);
    if (row < text_.first() || row + kAhead >= text_.first() + text_.rows()) {
        scroll(row - kBefore);
    }
}

bool ProgramScreen::scroll(int32_t first) {
    const bool moved = text_.scrollTo(first);
    if (moved) {
        context_.damage.add(text_.area());
    }
    return moved;
}

bool ProgramScreen::act(Action action) {
    switch (action) {
    case Action::OpenProgram:
        choose(!choosing_);
        return true;
    case Action::FollowProgram:
        choose(false);
        follows_ = !follows_;
        return true;
    default:
        return false;
    }
}

bool ProgramScreen::isOn(Action action) const {
    return (action == Action::FollowProgram && follows_) ||
           (action == Action::OpenProgram && choosing_);
}

void ProgramScreen::choose(bool choosing) {
    choosing_ = choosing;
    if (choosing) {
        context_.store.list();
        own_ = programNames();
        chosen_ = 0;
        updateNames();
    }
    context_.damage.add(card_.rect);
}

/// Servers tell what they have when they can: it stands behind the panel's own.
void ProgramScreen::updateNames() {
    std::vector<StoredProgram> programs;
    for (const std::u16string& name : own_) {
        programs.push_back({Store::Panel, name});
    }
    const std::vector<StoredProgram> listed = context_.store.listed();
    programs.insert(programs.end(), listed.begin(), listed.end());
    if (programs != programs_) {
        programs_ = std::move(programs);
        names_.setCount(static_cast<int32_t>(programs_.size()));
        context_.damage.add(card_.rect);
    }
}

void ProgramScreen::openChosen() {
    if (chosen_ >= names_.count()) {
        return;
    }
    const StoredProgram& program = programs_[static_cast<size_t>(chosen_)];
    if (program.store == Store::Panel) {
        context_.fetches.reset();
        context_.openProgram(program.name);
    } else {
        context_.fetches = program;
        context_.tell(u"Fetching", false);
        context_.store.fetch(program);
    }
    follows_ = true;
    choose(false);
}

bool ProgramScreen::key(int32_t key) {
    if (!choosing_) {
        const auto first = text_.moved(text_.first(), key);
        if (first) {
            follows_ = false;
            scroll(*first);
        }
        return first.has_value();
    }
    if (key == GPI_KEY_ENTER) {
        openChosen();
    } else if (key == GPI_KEY_ESCAPE) {
        choose(false);
    } else if (const auto row = names_.moved(chosen_, key)) {
        chosen_ = *row;
        names_.reveal(chosen_);
        context_.damage.add(card_.rect);
    } else {
        return false;
    }
    return true;
}

/// The text moves with the pointer; a program is chosen by a tap, and opened by another.
void ProgramScreen::pointer(PointerAction action, GPoint at) {
    if (action == PointerAction::Release) {
        drag_.reset();
    } else if (action == PointerAction::Press && choosing_) {
        const auto row = names_.at(at);
        if (row && *row == chosen_) {
            openChosen();
        } else if (row) {
            chosen_ = *row;
            context_.damage.add(card_.rect);
        }
    } else if (action == PointerAction::Press && contains(text_.area(), at)) {
        drag_ = at;
        dragFirst_ = text_.first();
    } else if (drag_) {
        const int rowHeight = heightOf(text_.place(0));
        if (scroll(dragFirst_ + (drag_->y - at.y) / rowHeight)) {
            follows_ = false;
        }
    }
}

void ProgramScreen::draw(const GRect& area) const {
    position_.draw(painter(), area, text(u"WorkPosition"));
    toGo_.draw(painter(), area, text(u"DistanceToGo"));
    details_.draw(painter(), context_.texts, area, u"Details");
    card_.draw(painter(), area, text(choosing_ ? u"ChooseProgram" : u"ProgramText"));
    if (choosing_) {
        names_.forRows(area, [this](int32_t row, const GRect& place) { drawName(row, place); });
    } else {
        text_.forRows(area, [this](int32_t row, const GRect& place) { drawLine(row, place); });
    }
}

void ProgramScreen::drawLine(int32_t row, GRect place) const {
    const Measures& m = measures();
    const bool runs = row + 1 == line_;
    if (runs) {
        painter().fill(place, Ink::AccentSoft);
        painter().fill(box(place.left, place.top, m.padding / 2, heightOf(place)), Ink::Accent);
    }
    GRect number = takeLeft(place, 6 * m.width(Face::Text));
    takeLeft(place, m.width(Face::Text));
    painter().text(number, {Face::Text, runs ? Ink::Accent : Ink::TextFaint, Align::Right},
                   wholeText(row + 1));
    painter().text(place, {Face::Text, Ink::Text, Align::Left}, context_.program.line(row + 1));
}

void ProgramScreen::drawName(int32_t row, const GRect& place) const {
    const StoredProgram& program = programs_[static_cast<size_t>(row)];
    const bool chosen = row == chosen_;
    if (chosen) {
        painter().plate(place, Ink::Accent, Ink::Accent);
    }
    const GRect name = inside(place, 2 * measures().padding, 0);
    painter().text(name, {Face::Text, chosen ? Ink::AccentText : Ink::Text, Align::Left},
                   program.name);
    if (program.store != Store::Panel) {
        painter().text(name, {Face::Label, chosen ? Ink::AccentText : Ink::TextFaint, Align::Right},
                       text(program.store == Store::DataServer ? u"DataServer" : u"WebServer"));
    }
}

} // namespace

std::unique_ptr<Screen> makeProgramScreen(Context& context) {
    return std::make_unique<ProgramScreen>(context);
}

} // namespace panel
