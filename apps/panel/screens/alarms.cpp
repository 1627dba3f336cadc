// Alarms that stand, and those that came before.
#include "parts/card.h"
#include "parts/list.h"
#include "screens/screens.h"
#include "text/format.h"

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::ActiveAlarms, u"ActiveAlarms", PANEL_ICONS_ALARM},
    {Action::AlarmHistory, u"AlarmHistory", PANEL_ICONS_HISTORY},
    {Action::ClearAlarm, u"ClearAlarm", PANEL_ICONS_CLEAR},
    {Action::Reset, u"Reset", PANEL_ICONS_RESET},
};

class AlarmsScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"Alarms"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void open() override;
    void update() override;
    void draw(const GRect& area) const override;
    bool act(Action action) override;
    bool isOn(Action action) const override;
    bool key(int32_t key) override;

  private:
    int32_t count() const;
    void show(bool history);
    void drawRow(int32_t row, GRect place) const;

    Card card_;
    List rows_;
    bool history_ = false;
    std::vector<Alarm> standing_; ///< that are shown
};

void AlarmsScreen::open() {
    const Measures& m = measures();
    card_.rect = inside(context_.work, m.margin);
    rows_.layOut(card_.content(m), m.height(Face::Text) + 2 * m.padding);
    show(history_);
}

int32_t AlarmsScreen::count() const {
    return static_cast<int32_t>(history_ ? context_.alarms.history().size()
                                         : context_.alarms.standing().size());
}

void AlarmsScreen::show(bool history) {
    history_ = history;
    standing_ = context_.alarms.standing();
    rows_.setCount(count());
    context_.damage.add(card_.rect);
}

/// The history grows only when the alarms that stand change.
void AlarmsScreen::update() {
    if (!(standing_ == context_.alarms.standing())) {
        show(history_);
    }
}

bool AlarmsScreen::act(Action action) {
    switch (action) {
    case Action::ActiveAlarms:
        show(false);
        return true;
    case Action::AlarmHistory:
        show(true);
        return true;
    case Action::ClearAlarm:
        context_.orders.give(command(G_NC_COMMAND_CLEAR_ALARM));
        return true;
    default:
        return false;
    }
}

bool AlarmsScreen::isOn(Action action) const {
    return action == (history_ ? Action::AlarmHistory : Action::ActiveAlarms);
}

bool AlarmsScreen::key(int32_t key) {
    const auto first = rows_.moved(rows_.first(), key);
    if (first && rows_.scrollTo(*first)) {
        context_.damage.add(card_.rect);
    }
    return first.has_value();
}

void AlarmsScreen::draw(const GRect& area) const {
    card_.draw(painter(), area, text(history_ ? u"HistoryTitle" : u"ActiveTitle"));
    if (count() == 0) {
        painter().text(rows_.area(), {Face::Text, Ink::TextFaint, Align::Centre},
                       text(history_ ? u"NoHistory" : u"NoAlarms"));
    }
    rows_.forRows(area, [this](int32_t row, const GRect& place) { drawRow(row, place); });
}

void AlarmsScreen::drawRow(int32_t row, GRect place) const {
    const Measures& m = measures();
    const auto at = static_cast<size_t>(row);
    const Alarm& alarm =
        history_ ? context_.alarms.history()[at].alarm : context_.alarms.standing()[at];
    if (row % 2 != 0) {
        painter().fill(place, Ink::Stripe);
    }
    if (history_) {
        const GRect time = takeLeft(place, 9 * m.width(Face::Text));
        painter().text(time, {Face::Text, Ink::TextFaint, Align::Left},
                       clockText(context_.alarms.history()[at].time));
    }
    GRect number = takeLeft(place, 6 * m.width(Face::Text));
    number = inside(number, m.padding / 2);
    painter().plate(number, history_ ? Ink::SignQuiet : Ink::Fault,
                    history_ ? Ink::SignQuiet : Ink::Fault);
    painter().text(number, {Face::Label, Ink::SignText, Align::Centre}, wholeText(alarm.number));
    takeLeft(place, m.padding);
    painter().text(place, {Face::Text, Ink::Text, Align::Left}, alarm.text);
}

} // namespace

std::unique_ptr<Screen> makeAlarmsScreen(Context& context) {
    return std::make_unique<AlarmsScreen>(context);
}

} // namespace panel
