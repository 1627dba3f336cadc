// Settings: the language, and what display and machine are.
#include "parts/list.h"
#include "parts/value_card.h"
#include "screens/screens.h"
#include "text/format.h"

#include <bit>

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::UseEnglish, u"LanguageEnglish", PANEL_ICONS_LANGUAGE},
    {Action::UseJapanese, u"LanguageJapanese", PANEL_ICONS_LANGUAGE},
    {Action::UseChinese, u"LanguageChinese", PANEL_ICONS_LANGUAGE},
    {Action::BlockSkip, u"BlockSkip", PANEL_ICONS_BLOCK_SKIP},
    {Action::OptionalStop, u"OptionalStop", PANEL_ICONS_OPTIONAL_STOP},
    {Action::DryRun, u"DryRun", PANEL_ICONS_DRY_RUN},
};

constexpr Word kDisplayNames[] = {u"Size", u"Depth", u"Format"};
constexpr Word kMachineNames[] = {u"Control", u"TravelX", u"TravelY", u"TravelZ"};
constexpr int kNameCells = 15;

constexpr Action kLanguageActions[] = {Action::UseEnglish, Action::UseJapanese, Action::UseChinese};

/// Bits of red, green and blue in a pixel.
std::u16string formatOf(const GVram& display) {
    const auto bits = [](uint32_t mask) { return wholeText(std::popcount(mask)); };
    return joined(
        {bits(display.redMask), u"-", bits(display.greenMask), u"-", bits(display.blueMask)});
}

class SettingsScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"Settings"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void open() override;
    void draw(const GRect& area) const override;
    bool isOn(Action action) const override;
    bool key(int32_t key) override;
    void pointer(PointerAction action, GPoint at) override;

  private:
    void drawLanguage(int32_t row, GRect place) const;
    void showFacts();
    std::u16string travelOf(Axis axis) const;

    Card languages_;
    List rows_;
    ValueCard display_{kDisplayNames};
    ValueCard machine_{kMachineNames};
};

void SettingsScreen::open() {
    const Measures& m = measures();
    GRect area = inside(context_.work, m.margin);
    languages_.rect = takeLeft(area, widthOf(area) * 2 / 5);
    takeLeft(area, m.margin);
    display_.layOut(takeTop(area, heightOf(area) * 2 / 5), m, kNameCells, Align::Left);
    takeTop(area, m.margin);
    machine_.layOut(area, m, kNameCells, Align::Left);
    rows_.layOut(languages_.content(m), 2 * m.height(Face::Text) + m.padding);
    rows_.setCount(static_cast<int32_t>(kLanguages.size()));
    showFacts();
}

void SettingsScreen::showFacts() {
    const GVram& display = *GDGetVram(painter().handle());
    Damage& damage = context_.damage;
    display_.show(0, joined({wholeText(display.width), u" x ", wholeText(display.height)}), damage);
    display_.show(1, joined({wholeText(display.bitsPerPixel), u" bit"}), damage);
    display_.show(2, formatOf(display), damage);
    machine_.show(0, readText(G_NC_CONTROL_NAME, 0), damage);
    for (const Axis axis : {kX, kY, kZ}) {
        machine_.show(size_t{axis} + 1, travelOf(axis), damage);
    }
}

bool SettingsScreen::isOn(Action action) const {
    return action == kLanguageActions[context_.texts.language()];
}

bool SettingsScreen::key(int32_t key) {
    const auto now = static_cast<int32_t>(context_.texts.language());
    const auto row = rows_.moved(now, key);
    if (row) {
        context_.ask(kLanguageActions[*row]);
    }
    return row.has_value();
}

void SettingsScreen::pointer(PointerAction action, GPoint at) {
    const auto row = rows_.at(at);
    if (action == PointerAction::Press && row) {
        context_.ask(kLanguageActions[*row]);
    }
}

void SettingsScreen::draw(const GRect& area) const {
    languages_.draw(painter(), area, text(u"Language"));
    rows_.forRows(area, [this](int32_t row, const GRect& place) { drawLanguage(row, place); });
    display_.draw(painter(), context_.texts, area, u"Display");
    machine_.draw(painter(), context_.texts, area, u"Machine");
}

std::u16string SettingsScreen::travelOf(Axis axis) const {
    return joined({wholeText(readValue(G_NC_LIMIT, 0, axis)), u" ... ",
                   wholeText(readValue(G_NC_LIMIT, 1, axis)), u" mm"});
}

void SettingsScreen::drawLanguage(int32_t row, GRect place) const {
    const bool chosen = static_cast<size_t>(row) == context_.texts.language();
    place = inside(place, measures().padding / 2);
    painter().plate(place, chosen ? Ink::Accent : Ink::Key, chosen ? Ink::Accent : Ink::KeyEdge);
    painter().text(place, {Face::Text, chosen ? Ink::AccentText : Ink::Text, Align::Centre},
                   text(kLanguages[static_cast<size_t>(row)].key));
}

} // namespace

std::unique_ptr<Screen> makeSettingsScreen(Context& context) {
    return std::make_unique<SettingsScreen>(context);
}

} // namespace panel
