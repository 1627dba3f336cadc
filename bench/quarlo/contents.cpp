#include "quarlo/contents.h"

#include "image.h"
#include "text.h"

#include <quarlo/clip.h>
#include <quarlo/draw.h>
#include <quarlo/font.h>
#include <quarlo/image.h>
#include <quarlo/text.h>

#include <algorithm>
#include <string>
#include <vector>

namespace bench {
namespace {

int16_t narrow(int value) {
    return static_cast<int16_t>(value);
}

/// The platform's one font.
GFontRecord* font() {
    static GFontScale scale{{}, 1, 1};
    static GFontRecord record{0, 0, &scale};
    return &record;
}

std::u16string textOf(const std::vector<TextLine>& lines) {
    std::u16string text;
    for (const TextLine& line : lines) {
        text += text.empty() ? u"" : u"\n";
        text.append(line.letters.begin(), line.letters.end());
    }
    return text;
}

GRect boxAt(const Place& place, const Workload& workload) {
    return {place.x, place.y, narrow(place.x + workload.width - 1),
            narrow(place.y + workload.height - 1)};
}

/// The image as the library has it: runs that are skipped, filled, or given pixel by pixel.
std::vector<uint8_t> streamOf(const Workload& workload) {
    constexpr uint8_t kSkip = 0x00;
    constexpr uint8_t kLiteral = 0x40;
    constexpr uint8_t kFill = 0xC0;
    const int unit =
        workload.operation == Operation::ImageZoom ? 1 : bytesPerPixel(workload.format);
    const std::vector<uint32_t> pixels = imagePixels(workload);
    std::vector<uint8_t> stream;
    const auto begin = [&stream](uint8_t kind, int count) {
        stream.push_back(static_cast<uint8_t>(kind | count));
    };
    const auto put = [&](uint32_t pixel) {
        for (int byte = 0; byte < unit; ++byte) {
            stream.push_back(static_cast<uint8_t>(pixel >> (8 * byte)));
        }
    };
    int at = 0;
    for (const Run& run : imageRuns()) {
        const int first = run.y * kImageSize + run.left;
        const int count = run.right - run.left + 1;
        if (first != at) {
            begin(kSkip, first - at);
            stream.push_back(0);
        }
        const auto* const values = pixels.data() + first;
        const bool solid =
            std::all_of(values, values + count, [=](uint32_t value) { return value == values[0]; });
        begin(solid ? kFill : kLiteral, count);
        std::for_each(values, values + (solid ? 1 : count), put);
        at = first + count;
    }
    stream.push_back(0);
    return stream;
}

} // namespace

Pass textPass(const Workload& workload, const Shapes& shapes, GDrawHandle* handle) {
    GDSetFont(handle, font());
    const std::u16string text = textOf(linesOf(workload));
    switch (workload.operation) {
    case Operation::Measure:
        return atPlaces(shapes, [=](const Place&) { GDGetStringWidth(handle, text.c_str()); });
    case Operation::Caption:
        return atPlaces(shapes, [=](const Place& place) {
            const GRect box = boxAt(place, workload);
            const GCaptionAttr attr{
                foreOf(workload.format), G_ALIGN_CENTRE, G_ALIGN_MIDDLE, 0, 0, 0, 0};
            GDDrawCaptionString(handle, &box, &attr, text.c_str());
        });
    default:
        return atPlaces(shapes, [=](const Place& place) {
            GDMoveTo(handle, place.x, place.y);
            GDDrawString(handle, text.c_str());
        });
    }
}

Pass imagePass(const Workload& workload, const Shapes& shapes, GDrawHandle* handle) {
    const std::vector<uint8_t> stream = streamOf(workload);
    const bool zooms = workload.operation == Operation::ImageZoom;
    const int bits = zooms ? 8 : 8 * bytesPerPixel(workload.format);
    const GGrfImage image{G_GRF_DIRECT, kImageSize, kImageSize, narrow(bits), 0, nullptr, nullptr};
    if (zooms) {
        return atPlaces(shapes, [=](const Place& place) {
            GDDrawGrfZoom(handle, &image, stream.data(), place.x, place.y, narrow(workload.width),
                          narrow(workload.height));
        });
    }
    if (workload.operation == Operation::Image) {
        return atPlaces(shapes, [=](const Place& place) {
            GDDrawGrf(handle, &image, stream.data(), place.x, place.y, 0, 0);
        });
    }
    const Part part = partOf(workload);
    return atPlaces(shapes, [=](const Place& place) {
        const GRect clip{narrow(place.x + part.left), narrow(place.y + part.top),
                         narrow(place.x + part.right), narrow(place.y + part.bottom)};
        GDSetClipRect(handle, &clip);
        GDDrawGrf(handle, &image, stream.data(), place.x, place.y, 0, 0);
    });
}

} // namespace bench
