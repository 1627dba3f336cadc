#include "support/picture.h"

#include "support/guarded_surface.h"

#include <algorithm>

namespace quarlo::test {

namespace {

char letterOf(uint32_t pixel, const Letters& letters) {
    if (letters.empty()) {
        return pixel == 0 ? '.' : '#';
    }
    for (const auto& [letter, value] : letters) {
        if (value == pixel) {
            return letter;
        }
    }
    return '?';
}

std::string rowOrNothing(const Picture& picture, size_t row, size_t width) {
    std::string text = row < picture.rows.size() ? picture.rows[row] : "";
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Picture& picture) {
    for (const std::string& row : picture.rows) {
        out << '\n' << row;
    }
    return out;
}

Picture pictureOf(const GVram& surface, const Letters& letters) {
    Picture picture;
    for (int y = 0; y < surface.height; ++y) {
        std::string& row = picture.rows.emplace_back();
        for (int x = 0; x < surface.width; ++x) {
            row += letterOf(pixelAt(surface, x, y), letters);
        }
    }
    return picture;
}

testing::AssertionResult samePicture(const Picture& actual, const Picture& expected) {
    if (actual == expected) {
        return testing::AssertionSuccess();
    }
    constexpr size_t kHeading = 8;
    size_t width = kHeading;
    for (const std::string& row : expected.rows) {
        width = std::max(width, row.size());
    }
    std::string heading = "expected";
    heading.resize(width, ' ');
    testing::AssertionResult result = testing::AssertionFailure();
    result << '\n' << heading << "  actual";
    const size_t height = std::max(actual.rows.size(), expected.rows.size());
    for (size_t y = 0; y < height; ++y) {
        const std::string left = rowOrNothing(expected, y, width);
        const std::string right = rowOrNothing(actual, y, 0);
        const bool same = y < expected.rows.size() && right == expected.rows[y];
        result << '\n' << left << "  " << right << (same ? "" : "  <- row " + std::to_string(y));
    }
    return result;
}

testing::AssertionResult shows(const GVram& surface, const std::vector<std::string>& rows,
                               const Letters& letters) {
    return samePicture(pictureOf(surface, letters), Picture{rows});
}

} // namespace quarlo::test
