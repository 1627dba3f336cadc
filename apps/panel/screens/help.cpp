// What every key of the keyboard does.
#include "parts/card.h"
#include "screens/screens.h"

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::ShowStart, u"Start", PANEL_ICONS_HOME},
    {Action::ShowPosition, u"Position", PANEL_ICONS_HANDWHEEL},
};

class HelpScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"Help"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void draw(const GRect& area) const override;

  private:
    void drawKey(GRect row, const KeyBinding& binding) const;
};

/// Two columns, the second going on where the first ends.
void HelpScreen::draw(const GRect& area) const {
    const Measures& m = measures();
    const Card card{inside(context_.work, m.margin)};
    card.draw(painter(), area, text(u"HelpTitle"));
    GRect content = card.content(m);
    GRect note = takeBottom(content, m.height(Face::Text) + m.padding);
    painter().text(note, {Face::Text, Ink::TextFaint, Align::Left}, text(u"HelpNote"));

    const KeyBindings bindings = keyBindings();
    const size_t rows = (bindings.count + 1) / 2;
    const int height = heightOf(content) / static_cast<int>(rows);
    GRect column = takeLeft(content, widthOf(content) / 2);
    size_t row = 0;
    for (const KeyBinding& binding : bindings) {
        if (row++ == rows) {
            column = content;
        }
        const GRect line = takeTop(column, height);
        if (meet(line, area)) {
            drawKey(line, binding);
        }
    }
}

void HelpScreen::drawKey(GRect row, const KeyBinding& binding) const {
    const Measures& m = measures();
    GRect cap = takeLeft(row, 7 * m.width(Face::Label));
    const int border = std::max(0, (heightOf(cap) - m.height(Face::Label) - 4) / 2);
    cap.top = static_cast<int16_t>(cap.top + border);
    cap.bottom = static_cast<int16_t>(cap.bottom - border);
    painter().plate(cap, Ink::Key, Ink::KeyEdge);
    painter().text(cap, {Face::Label, Ink::Text, Align::Centre}, binding.name);
    takeLeft(row, m.padding);
    painter().text(row, {Face::Text, Ink::Text, Align::Left}, text(binding.meaning));
}

} // namespace

std::unique_ptr<Screen> makeHelpScreen(Context& context) {
    return std::make_unique<HelpScreen>(context);
}

} // namespace panel
