// Offsets and macro variables: tables whose values can be edited.
#include "machine/table.h"
#include "parts/card.h"
#include "parts/edit_field.h"
#include "parts/keypad.h"
#include "parts/list.h"
#include "screens/screens.h"

namespace panel {
namespace {

constexpr SoftKey kKeys[] = {
    {Action::WorkOffsets, u"WorkOffsets", PANEL_ICONS_OFFSETS},
    {Action::ToolOffsets, u"ToolOffsets", PANEL_ICONS_TOOL},
    {Action::Macros, u"Macros", PANEL_ICONS_PROGRAM},
    {Action::EditValue, u"EditValue", PANEL_ICONS_EDIT},
    {Action::UnsetValue, u"UnsetValue", PANEL_ICONS_CLEAR},
};

constexpr size_t kLongestValue = 14; // characters

class OffsetsScreen : public Screen {
  public:
    using Screen::Screen;

    Word title() const override { return u"Offsets"; }
    std::span<const SoftKey> keys() const override { return kKeys; }
    void open() override;
    void update() override;
    void draw(const GRect& area) const override;
    bool act(Action action) override;
    bool isOn(Action action) const override;
    bool key(int32_t key) override;
    void pointer(PointerAction action, GPoint at) override;

  private:
    struct Cell {
        int32_t row = 0;
        int32_t column = 0;
        bool operator==(const Cell&) const = default;
    };

    void show(const Table& table);
    int32_t columns() const { return static_cast<int32_t>(table_->columns.size()); }
    GRect place(const Cell& cell) const;
    size_t indexOf(const Cell& cell) const;
    std::u16string& shown(const Cell& cell) { return texts_[indexOf(cell)]; }
    std::optional<Address> chosenAddress() const;
    void choose(Cell cell);
    void edit(const std::u16string& text);
    void endEdit();
    void accept();
    void unset();
    bool editKey(int32_t key);
    void drawHeadings(const GRect& area) const;
    void drawRow(int32_t row, const GRect& place, const GRect& area) const;
    void drawCell(const Cell& cell) const;

    const Table* table_ = &kWorkOffsetTable;
    Card card_;
    GRect headings_{};
    int labelWidth_ = 0;
    List rows_;
    Cell chosen_;
    bool edits_ = false;
    EditField field_{kLongestValue};
    Keypad keypad_ = numberPad();
    std::vector<std::u16string> texts_; ///< that are shown, of the rows in view
};

void OffsetsScreen::open() {
    const Measures& m = measures();
    GRect area = inside(context_.work, m.margin);
    keypad_.layOut(takeRight(area, 18 * m.width(Face::Text)));
    takeRight(area, m.margin);
    card_.rect = area;
    GRect content = card_.content(m);
    headings_ = takeTop(content, m.height(Face::Label) + m.padding);
    labelWidth_ = 6 * m.width(Face::Text);
    rows_.layOut(content, m.height(Face::Text) + m.padding);
    endEdit();
    show(*table_);
}

void OffsetsScreen::show(const Table& table) {
    if (table_ != &table) {
        chosen_ = {};
        endEdit();
    }
    table_ = &table;
    rows_.setCount(table.rows);
    rows_.reveal(chosen_.row);
    texts_.assign(static_cast<size_t>(rows_.rows()) * table.columns.size(), {});
    update();
    context_.damage.add(card_.rect);
}

/// Reads the values in view.
void OffsetsScreen::update() {
    for (Cell cell{rows_.first(), 0}; rows_.shows(cell.row); ++cell.row) {
        for (cell.column = 0; cell.column < columns(); ++cell.column) {
            const auto address = table_->address(cell.row, cell.column);
            const std::u16string now = address ? cellText(*table_, *address) : std::u16string();
            if (shown(cell) != now) {
                shown(cell) = now;
                context_.damage.add(place(cell));
            }
        }
    }
}

/// Of the text of a cell in view.
size_t OffsetsScreen::indexOf(const Cell& cell) const {
    const auto row = static_cast<size_t>(cell.row - rows_.first());
    return row * table_->columns.size() + static_cast<size_t>(cell.column);
}

GRect OffsetsScreen::place(const Cell& cell) const {
    GRect row = rows_.place(cell.row);
    takeLeft(row, labelWidth_);
    const int width = widthOf(row) / columns();
    return box(row.left + cell.column * width, row.top, width, heightOf(row));
}

std::optional<Address> OffsetsScreen::chosenAddress() const {
    return table_->address(chosen_.row, chosen_.column);
}

void OffsetsScreen::choose(Cell cell) {
    if (!table_->address(cell.row, cell.column)) {
        return;
    }
    context_.damage.add(place(chosen_));
    chosen_ = cell;
    if (rows_.reveal(cell.row)) {
        show(*table_);
    }
    context_.damage.add(place(chosen_));
}

void OffsetsScreen::edit(const std::u16string& text) {
    edits_ = true;
    field_.begin(text);
    context_.damage.add(place(chosen_));
}

void OffsetsScreen::endEdit() {
    edits_ = false;
    context_.damage.add(place(chosen_));
}

/// Gives the value to the control. A text that is none stays to be corrected.
void OffsetsScreen::accept() {
    const auto address = chosenAddress();
    const auto order = address ? setCell(*table_, *address, field_.text()) : std::nullopt;
    if (!order) {
        context_.tell(u"NotANumber", true);
        return;
    }
    context_.orders.give({*order});
    endEdit();
}

void OffsetsScreen::unset() {
    const auto address = chosenAddress();
    if (address && table_->mayBeUnset) {
        endEdit();
        context_.orders.give({*setCell(*table_, *address, {})});
    }
}

bool OffsetsScreen::act(Action action) {
    switch (action) {
    case Action::WorkOffsets:
        show(kWorkOffsetTable);
        return true;
    case Action::ToolOffsets:
        show(kToolTable);
        return true;
    case Action::Macros:
        show(kMacroTable);
        return true;
    case Action::EditValue:
        edits_ ? accept() : edit(shown(chosen_));
        return true;
    case Action::UnsetValue:
        unset();
        return true;
    default:
        return false;
    }
}

bool OffsetsScreen::isOn(Action action) const {
    return (action == Action::WorkOffsets && table_ == &kWorkOffsetTable) ||
           (action == Action::ToolOffsets && table_ == &kToolTable) ||
           (action == Action::Macros && table_ == &kMacroTable) ||
           (action == Action::EditValue && edits_);
}

bool OffsetsScreen::key(int32_t key) {
    if (edits_) {
        return editKey(key);
    }
    if (key == GPI_KEY_ENTER) {
        edit(shown(chosen_));
    } else if (key == GPI_KEY_DELETE) {
        unset();
    } else if (key == GPI_KEY_LEFT && chosen_.column > 0) {
        choose({chosen_.row, chosen_.column - 1});
    } else if (key == GPI_KEY_RIGHT && chosen_.column + 1 < columns()) {
        choose({chosen_.row, chosen_.column + 1});
    } else if (const auto row = rows_.moved(chosen_.row, key)) {
        choose({*row, chosen_.column});
    } else {
        const bool begins = (key >= '0' && key <= '9') || key == GPI_KEY_MINUS ||
                            key == GPI_KEY_PERIOD || (key >= GPI_KEY_PAD_0 && key <= GPI_KEY_PAD_9);
        if (begins) {
            edit({});
            editKey(key);
        }
        return begins;
    }
    return true;
}

bool OffsetsScreen::editKey(int32_t key) {
    if (key == GPI_KEY_ENTER) {
        accept();
    } else if (key == GPI_KEY_ESCAPE) {
        context_.tell(nullptr, false);
        endEdit();
    } else if (!field_.key(key, context_.shifted)) {
        return false;
    }
    context_.damage.add(place(chosen_));
    return true;
}

void OffsetsScreen::pointer(PointerAction action, GPoint at) {
    if (action != PointerAction::Press) {
        return;
    }
    if (const KeyCap* const cap = keypad_.at(at)) {
        key(cap->key);
        return;
    }
    const auto row = rows_.at(at);
    for (int32_t column = 0; row && column < columns(); ++column) {
        const Cell cell{*row, column};
        if (!contains(place(cell), at)) {
            continue;
        }
        if (cell == chosen_) {
            act(Action::EditValue);
        } else {
            endEdit();
            choose(cell);
        }
        return;
    }
}

void OffsetsScreen::draw(const GRect& area) const {
    card_.draw(painter(), area, text(table_->title));
    drawHeadings(area);
    rows_.forRows(area, [&](int32_t row, const GRect& place) { drawRow(row, place, area); });
    keypad_.draw(painter(), area);
}

void OffsetsScreen::drawHeadings(const GRect& area) const {
    if (!meet(headings_, area)) {
        return;
    }
    for (int32_t column = 0; column < columns(); ++column) {
        GRect heading = place({rows_.first(), column});
        heading.top = headings_.top;
        heading.bottom = headings_.bottom;
        takeRight(heading, measures().padding);
        painter().text(heading, {Face::Label, Ink::TextFaint, Align::Right},
                       table_->columns[static_cast<size_t>(column)]);
    }
}

void OffsetsScreen::drawRow(int32_t row, const GRect& place, const GRect& area) const {
    if (row % 2 != 0) {
        painter().fill(place, Ink::Stripe);
    }
    GRect label = place;
    label = takeLeft(label, labelWidth_);
    takeLeft(label, measures().padding);
    painter().text(label, {Face::Text, Ink::Accent, Align::Left}, table_->label(row));
    for (int32_t column = 0; column < columns(); ++column) {
        const Cell cell{row, column};
        if (meet(this->place(cell), area)) {
            drawCell(cell);
        }
    }
}

void OffsetsScreen::drawCell(const Cell& cell) const {
    GRect rect = place(cell);
    const bool chosen = cell == chosen_;
    if (chosen) {
        painter().plate(rect, edits_ ? Ink::Card : Ink::AccentSoft, Ink::Accent);
    }
    takeRight(rect, measures().padding);
    if (chosen && edits_) {
        takeLeft(rect, 2);
        rect.top = static_cast<int16_t>(rect.top + 1);
        rect.bottom = static_cast<int16_t>(rect.bottom - 1);
        field_.draw(painter(), rect, Face::Text, Align::Right);
        return;
    }
    painter().text(rect, {Face::Text, Ink::Text, Align::Right}, texts_[indexOf(cell)]);
}

} // namespace

std::unique_ptr<Screen> makeOffsetsScreen(Context& context) {
    return std::make_unique<OffsetsScreen>(context);
}

} // namespace panel
