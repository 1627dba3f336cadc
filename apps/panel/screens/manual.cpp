// Manual input: a block is typed and run at once.
#include "parts/axis_card.h"
#include "parts/edit_field.h"
#include "parts/keypad.h"
#include "parts/list.h"
#include "screens/screens.h"

#include <gpi/nc.h>

#include <deque>

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::RunBlock, u"RunBlock", PANEL_ICONS_CYCLE_START},
    {Action::FeedHold, u"FeedHold", PANEL_ICONS_FEED_HOLD},
    {Action::UnsetValue, u"ClearBlock", PANEL_ICONS_CLEAR},
    {Action::Reset, u"Reset", PANEL_ICONS_RESET},
};

constexpr size_t kMostKept = 50; // blocks that were run

class ManualScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"ManualInput"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void open() override;
    void update() override;
    void draw(const GRect& area) const override;
    bool act(Action action) override;
    bool key(int32_t key) override;
    void pointer(PointerAction action, GPoint at) override;

  private:
    bool type(int32_t key, bool shifted);
    void run();
    void changed() { context_.damage.add(line_); }

    Card input_;
    GRect line_{};
    EditField field_{GPI_NC_LONGEST_BLOCK};
    Card done_;
    List rows_;
    std::deque<std::u16string> blocks_; ///< that were run, the newest first
    AxisCard position_;
    AxisCard toGo_;
    Keypad keypad_ = blockPad();
};

void ManualScreen::open() {
    const Measures& m = measures();
    GRect area = inside(context_.work, m.margin);
    GRect right = takeRight(area, 12 * m.width(Face::Number) + 3 * m.padding);
    takeRight(area, m.margin);
    const int half = (heightOf(right) - m.margin) / 2;
    position_.layOut(takeTop(right, half), m, Face::Number);
    takeTop(right, m.margin);
    toGo_.layOut(right, m, Face::Number);

    keypad_.layOut(takeBottom(area, heightOf(area) / 2));
    takeBottom(area, m.margin);
    input_.rect = takeTop(area, m.height(Face::Label) + m.height(Face::Number) + 5 * m.padding);
    line_ = input_.content(m);
    takeTop(area, m.margin);
    done_.rect = area;
    rows_.layOut(done_.content(m), m.height(Face::Text) + 2);
    rows_.setCount(static_cast<int32_t>(blocks_.size()));
    update();
}

void ManualScreen::update() {
    position_.show(context_.now, context_.now.work, context_.damage);
    toGo_.show(context_.now, context_.now.toGo, context_.damage);
}

bool ManualScreen::act(Action action) {
    switch (action) {
    case Action::RunBlock:
        run();
        return true;
    case Action::UnsetValue:
        field_.begin({});
        changed();
        return true;
    default:
        return false;
    }
}

bool ManualScreen::key(int32_t key) {
    return type(key, context_.shifted);
}

/// @return whether the key is one of the field: letters are no commands here
bool ManualScreen::type(int32_t key, bool shifted) {
    if (key == GPI_KEY_ENTER) {
        run();
    } else if (key == GPI_KEY_UP && !blocks_.empty()) {
        field_.begin(blocks_.front());
    } else if (!field_.key(key, shifted)) {
        return false;
    }
    changed();
    return true;
}

/// The block stays, selected: it can be run once more, and goes with the next that is typed.
void ManualScreen::run() {
    if (field_.text().empty()) {
        return;
    }
    context_.orders.give(runBlock(field_.text()));
    blocks_.push_front(field_.text());
    blocks_.resize(std::min(blocks_.size(), kMostKept));
    rows_.setCount(static_cast<int32_t>(blocks_.size()));
    field_.begin(field_.text());
    context_.damage.add(done_.rect);
    changed();
}

void ManualScreen::pointer(PointerAction action, GPoint at) {
    if (action != PointerAction::Press) {
        return;
    }
    if (const KeyCap* const cap = keypad_.at(at)) {
        type(cap->key, cap->shifted);
    } else if (const auto row = rows_.at(at)) {
        field_.begin(blocks_[static_cast<size_t>(*row)]);
        changed();
    }
}

void ManualScreen::draw(const GRect& area) const {
    position_.draw(painter(), area, text(u"WorkPosition"));
    toGo_.draw(painter(), area, text(u"DistanceToGo"));
    keypad_.draw(painter(), area);
    done_.draw(painter(), area, text(u"BlocksDone"));
    rows_.forRows(area, [this](int32_t row, const GRect& place) {
        painter().text(place, {Face::Text, Ink::TextFaint, Align::Left},
                       blocks_[static_cast<size_t>(row)]);
    });
    input_.draw(painter(), area, text(u"BlockToRun"));
    if (meet(line_, area)) {
        painter().plate(line_, Ink::Card, Ink::Accent);
        field_.draw(painter(), inside(line_, 3), Face::Number, Align::Left);
    }
}

} // namespace

std::unique_ptr<Screen> makeManualScreen(Context& context) {
    return std::make_unique<ManualScreen>(context);
}

} // namespace panel
