// Draw handles with a scripted font.
#pragma once

#include "raster/drawing.h"
#include "support/random_calls.h"
#include "support/scripted_font.h"
#include "text/text_model.h"

#include <quarlo/platform.h>
#include <quarlo/text.h>

#include <string>

namespace quarlo::test {

/// A platform without services for whole strings.
class TextTest : public RasterTest {
  protected:
    TextTest() {
        platform.remove({44, 75});
        GetGPIFunction();
    }

    void offer(int service) {
        platform.restore(service);
        GetGPIFunction();
    }
};

enum class TextThrough { Kernels, CopiedOps, Device };

/// The first pixel in which a surface and a model differ, in words; an empty text when none does.
inline std::string difference(const GVram& surface, const TextModel& model) {
    for (int32_t y = 0; y < surface.height; ++y) {
        for (int32_t x = 0; x < surface.width; ++x) {
            const uint32_t expected = model.pixels[static_cast<size_t>(y * model.width + x)];
            const uint32_t actual = pixelAt(surface, x, y);
            if (actual != expected) {
                return "row " + std::to_string(y) + " column " + std::to_string(x) + " is " +
                       std::to_string(actual) + ", not " + std::to_string(expected);
            }
        }
    }
    return {};
}

/// Letters, spaces, units without a glyph, surrogate pairs, and units from `extra`.
inline std::u16string randomText(Random& random, int32_t most, const std::u16string& extra = u"") {
    std::u16string text;
    for (int32_t left = random.between(0, most); left > 0; --left) {
        const int32_t kind = random.between(0, 11);
        if (kind < 7) {
            text += static_cast<char16_t>(random.between('A', 'z'));
        } else if (kind == 7) {
            text.push_back(u' ');
        } else if (kind == 8) {
            text += static_cast<char16_t>(random.between(0xE000, 0xE0FF));
        } else if (kind == 9) {
            text.append({0xD842, 0xDFB7}); // one glyph
        } else if (!extra.empty()) {
            text += random.pick(extra);
        }
    }
    return text;
}

} // namespace quarlo::test
