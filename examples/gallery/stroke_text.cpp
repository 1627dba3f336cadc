#include "stroke_text.h"

#include <quarlo/draw.h>
#include <quarlo/handle.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace gallery {
namespace {

constexpr int kLetterGap = 2;
constexpr int kWordGap = 3;

/// A character and its strokes, separated by spaces. A stroke is a run of points, each a column and
/// a row digit; capitals stand on rows 0 to 6. A stroke of one point is a dot.
struct Character {
    char name;
    std::string_view strokes;
};

constexpr Character kAlphabet[] = {
    {'A', "0602204246 0444"},
    {'B', "00063645443303 3342413000"},
    {'C', "4130100105163645"},
    {'D', "00063645413000"},
    {'E', "40000646 0333"},
    {'F', "400006 0333"},
    {'G', "41301001051636454323"},
    {'H', "0006 4046 0343"},
    {'I', "0006"},
    {'J', "3035261605"},
    {'K', "0006 0440 1346"},
    {'L', "000646"},
    {'M', "0600224046"},
    {'N', "0600 0145 4046"},
    {'O', "103041453616050110"},
    {'P', "06003041423303"},
    {'Q', "103041453616050110 2446"},
    {'R', "06003041423303 1346"},
    {'S', "413010010213334445361605"},
    {'T', "0040 2026"},
    {'U', "000516364540"},
    {'V', "0004264440"},
    {'W', "0006244640"},
    {'X', "00014546 40410506"},
    {'Y', "0001234140 2326"},
    {'Z', "004041050646"},
    {'0', "102031352616050110"},
    {'1', "011016"},
    {'2', "0110203132050636"},
    {'3', "01102031322313 233435261605"},
    {'4', "26200434"},
    {'5', "300002223335261605"},
    {'6', "3120100105162635342303"},
    {'7', "0030321416"},
    {'8', "132332312010010213 1304051626353423"},
    {'9', "0516263531201001021333"},
    {'.', "06"},
    {',', "1507"},
    {':', "02 05"},
    {'-', "0333"},
    {'+', "0343 2125"},
    {'=', "0232 0434"},
    {'/', "0630"},
    {'(', "10010516"},
    {')', "00111506"},
    {'x', "0246 0642"}, // the sign between two sizes
};

/// Empty for a character that is not in the alphabet.
std::string_view strokesOf(char name) {
    const auto* const found =
        std::find_if(std::begin(kAlphabet), std::end(kAlphabet),
                     [name](const Character& character) { return character.name == name; });
    return found == std::end(kAlphabet) ? std::string_view() : found->strokes;
}

struct UnitPoint {
    int column;
    int row;
};

/// Calls visit(point, whether it begins a stroke, whether it also ends it).
template <typename Visit>
void forEachPoint(std::string_view strokes, Visit visit) {
    bool begins = true;
    for (size_t i = 0; i + 1 < strokes.size(); i += 2) {
        if (strokes[i] == ' ') {
            begins = true;
            ++i;
        }
        const bool ends = i + 2 >= strokes.size() || strokes[i + 2] == ' ';
        visit(UnitPoint{strokes[i] - '0', strokes[i + 1] - '0'}, begins, ends);
        begins = false;
    }
}

int unitWidth(std::string_view strokes) {
    int width = 0;
    forEachPoint(strokes,
                 [&](UnitPoint point, bool, bool) { width = std::max(width, point.column); });
    return width;
}

/// Columns from a character to the next one. Strokes have a thickness of one pixel at any scale.
int advance(std::string_view strokes, int scale) {
    return strokes.empty() ? kWordGap * scale : (unitWidth(strokes) + kLetterGap) * scale + 1;
}

} // namespace

int textWidth(std::string_view text, int scale) {
    int width = 0;
    for (const char character : text) {
        width += advance(strokesOf(character), scale);
    }
    return width - kLetterGap * scale;
}

void drawText(GDrawHandle* handle, int left, int top, std::string_view text, uint32_t color,
              int scale) {
    const GDrawHandle before = *handle;
    GDSetPenColor(handle, color);
    GDSetPenSize(handle, 1, 1);
    GDSetPenDash(handle, 0);
    for (const char character : text) {
        const std::string_view strokes = strokesOf(character);
        forEachPoint(strokes, [&](UnitPoint point, bool begins, bool ends) {
            const auto x = static_cast<int16_t>(left + point.column * scale);
            const auto y = static_cast<int16_t>(top + point.row * scale);
            if (begins && ends) {
                GDSetPixel(handle, x, y);
            } else if (begins) {
                GDMoveTo(handle, x, y);
            } else {
                GDLineTo(handle, x, y);
            }
        });
        left += advance(strokes, scale);
    }
    GDSetPenColor(handle, before.penColor);
    GDSetPenSize(handle, before.penWidth, before.penHeight);
    GDSetPenDash(handle, before.penDash);
}

} // namespace gallery
