// The limit: what the C library's memory calls need for the same bytes, row by row as any drawing
// on a surface has to go. Filled shapes have their spans worked out beforehand, lines and text
// their addresses, images their opaque runs.
#include "contender.h"
#include "image.h"
#include "outlines.h"
#include "text.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace bench {
namespace {

struct Row {
    size_t bytes;  ///< that one row of a shape covers
    size_t stride; ///< of the surface
    int height;
    int pixelBytes;
    uint32_t pixel;

    size_t offset(int x, int y) const {
        return static_cast<size_t>(y) * stride + static_cast<size_t>(x * pixelBytes);
    }
};

template <int PixelBytes>
void store(uint8_t* at, uint32_t pixel) {
    std::memcpy(at, &pixel, std::min(PixelBytes, 2));
    if constexpr (PixelBytes == 3) {
        at[2] = static_cast<uint8_t>(pixel >> 16);
    }
}

// A shape's row record travels by value: kept in registers, no store can be taken to change it.

void fillShape(Row row, uint8_t* at) {
    for (int y = 0; y < row.height; ++y, at += row.stride) {
        std::memset(at, static_cast<int>(row.pixel & 0xFF), row.bytes);
    }
}

void copyShape(Row row, uint8_t* to, const uint8_t* from) {
    for (int y = 0; y < row.height; ++y, to += row.stride, from += row.stride) {
        std::memcpy(to, from, row.bytes);
    }
}

template <int PixelBytes>
void storeShape(Row row, uint8_t* at) {
    for (int y = 0; y < row.height; ++y, at += row.stride) {
        store<PixelBytes>(at, row.pixel);
    }
}

Pass fillRows(const Row& row, const Shapes& shapes, uint8_t* pixels) {
    return atPlaces(
        shapes, [=](const Place& place) { fillShape(row, pixels + row.offset(place.x, place.y)); });
}

/// The bare spans of a filled shape, one memset each.
Pass fillRuns(const Row& row, const std::vector<Run>& runs, const Shapes& shapes, uint8_t* pixels) {
    struct Piece {
        size_t offset;
        size_t bytes;
    };
    std::vector<Piece> pieces;
    for (const Run& run : runs) {
        const auto bytes = static_cast<size_t>((run.right - run.left + 1) * row.pixelBytes);
        pieces.push_back({row.offset(run.left, run.y), bytes});
    }
    return atPlaces(shapes, [=](const Place& place) {
        uint8_t* const corner = pixels + row.offset(place.x, place.y);
        for (const auto& [offset, bytes] : pieces) {
            std::memset(corner + offset, static_cast<int>(row.pixel & 0xFF), bytes);
        }
    });
}

Pass copyRows(const Row& row, const Shapes& shapes, uint8_t* pixels, const uint8_t* source) {
    return atPlaces(shapes, [=](const Place& place) {
        copyShape(row, pixels + row.offset(place.x, place.y),
                  source + row.offset(place.sourceX, place.sourceY));
    });
}

template <int PixelBytes>
Pass storeColumn(const Row& row, const Shapes& shapes, uint8_t* pixels) {
    return atPlaces(shapes, [=](const Place& place) {
        storeShape<PixelBytes>(row, pixels + row.offset(place.x, place.y));
    });
}

Pass moveBlock(const Row& row, Step step, const Shapes& shapes, uint8_t* pixels) {
    const size_t whole = row.stride * kHeight;
    const auto distance = static_cast<size_t>(std::abs(step.y) * static_cast<int>(row.stride) +
                                              std::abs(step.x) * row.pixelBytes);
    const bool forward = step.x + step.y > 0;
    return atPlaces(shapes, [=](const Place&) {
        std::memmove(pixels + (forward ? distance : 0), pixels + (forward ? 0 : distance),
                     whole - distance);
    });
}

/// The pixels of a line by plain interpolation, as offsets into the surface.
void appendPixels(std::vector<uint32_t>& offsets, const Row& row, const Segment& line) {
    const int dx = line.x2 - line.x1;
    const int dy = line.y2 - line.y1;
    const int major = std::max(std::abs(dx), std::abs(dy));
    for (int step = 0; step <= major; ++step) {
        const int x = line.x1 + (dx * step) / major;
        const int y = line.y1 + (dy * step) / major;
        offsets.push_back(static_cast<uint32_t>(row.offset(x, y)));
    }
}

template <int PixelBytes>
Pass storeLines(const Row& row, const Shapes& shapes, uint8_t* pixels) {
    std::vector<uint32_t> offsets;
    std::vector<uint32_t> ends;
    for (const Segment& line : shapes.segments) {
        appendPixels(offsets, row, line);
        ends.push_back(static_cast<uint32_t>(offsets.size()));
    }
    return [=, pixel = row.pixel] {
        const uint32_t* offset = offsets.data();
        for (const uint32_t end : ends) {
            for (const uint32_t* last = offsets.data() + end; offset != last; ++offset) {
                store<PixelBytes>(pixels + *offset, pixel);
            }
        }
    };
}

/// Every set pixel of the glyphs.
template <int PixelBytes>
Pass storeText(const Workload& workload, const Row& row, const Shapes& shapes, uint8_t* pixels) {
    std::vector<uint32_t> offsets;
    for (const TextLine& line : linesOf(workload)) {
        int left = line.x;
        for (const char letter : line.letters) {
            for (int i = 0; i < kGlyphWidth * kGlyphHeight; ++i) {
                const int x = i % kGlyphWidth;
                const int y = i / kGlyphWidth;
                if ((glyphOf(letter)[static_cast<size_t>(y)] >> (kGlyphWidth - 1 - x) & 1) != 0) {
                    offsets.push_back(static_cast<uint32_t>(row.offset(left + x, line.y + y)));
                }
            }
            left += kGlyphWidth;
        }
    }
    return atPlaces(shapes, [=](const Place& place) {
        uint8_t* const corner = pixels + row.offset(place.x, place.y);
        for (const uint32_t offset : offsets) {
            store<PixelBytes>(corner + offset, row.pixel);
        }
    });
}

template <int PixelBytes>
Pass storePixels(const Workload& workload, const Row& row, const Shapes& shapes, uint8_t* pixels) {
    if (isText(workload.operation)) {
        return storeText<PixelBytes>(workload, row, shapes, pixels);
    }
    return workload.operation == Operation::Column ? storeColumn<PixelBytes>(row, shapes, pixels)
                                                   : storeLines<PixelBytes>(row, shapes, pixels);
}

/// The opaque runs that show, one memcpy each.
Pass copyRuns(const Workload& workload, const Row& row, const Shapes& shapes, uint8_t* pixels,
              const uint8_t* source) {
    struct Piece {
        size_t offset;
        size_t bytes;
    };
    const Part part = partOf(workload);
    std::vector<Piece> pieces;
    for (const Run& run : imageRuns()) {
        const int left = std::max(run.left, part.left);
        const int right = std::min(run.right, part.right);
        if (left <= right && run.y >= part.top && run.y <= part.bottom) {
            pieces.push_back({row.offset(left, run.y),
                              static_cast<size_t>((right - left + 1) * row.pixelBytes)});
        }
    }
    return atPlaces(shapes, [=](const Place& place) {
        uint8_t* const corner = pixels + row.offset(place.x, place.y);
        const uint8_t* from = source;
        for (const auto& [offset, bytes] : pieces) {
            std::memcpy(corner + offset, from, bytes);
            from += bytes;
        }
    });
}

class Limit final : public Contender {
  public:
    std::string_view name() const override { return "limit"; }

    Rule rule(const Workload&) const override { return Rule::Amount; }

    Pass prepare(const Workload& workload, const Shapes& shapes, Canvas& canvas) override {
        if (workload.mode != Mode::Copy) {
            return {};
        }
        const Row row = rowOf(workload);
        if (isShape(workload.operation)) {
            const std::vector<Run> runs = runsOf(workload);
            return runs.empty() ? Pass() : fillRuns(row, runs, shapes, canvas.pixels());
        }
        switch (workload.operation) {
        case Operation::Dash:
        case Operation::WideLine:
        case Operation::Measure:
        case Operation::ImageZoom:
            return {};
        case Operation::Fill:
        case Operation::Pattern:
        case Operation::Span:
            return fillRows(row, shapes, canvas.pixels());
        case Operation::Image:
        case Operation::ImageRight:
        case Operation::ImageLower:
            return copyRuns(workload, row, shapes, canvas.pixels(), canvas.source());
        case Operation::OpaqueText:
        case Operation::Transfer:
        case Operation::Convert:
            return copyRows(row, shapes, canvas.pixels(), canvas.source());
        case Operation::Scroll:
            return moveBlock(row, workload.step, shapes, canvas.pixels());
        default:
            break;
        }
        constexpr Pass (*kStores[])(const Workload&, const Row&, const Shapes&, uint8_t*) = {
            nullptr, storePixels<1>, storePixels<2>, storePixels<3>};
        return kStores[row.pixelBytes](workload, row, shapes, canvas.pixels());
    }

  private:
    /// A conversion is bounded by the larger of what it reads and what it writes.
    static Row rowOf(const Workload& workload) {
        const Format format = bytesPerPixel(workload.source) > bytesPerPixel(workload.format)
                                  ? workload.source
                                  : workload.format;
        const int size = bytesPerPixel(format);
        return {static_cast<size_t>(workload.width * size),
                static_cast<size_t>(bytesPerLine(format)), workload.height, size, foreOf(format)};
    }
};

} // namespace

std::unique_ptr<Contender> makeLimit() {
    return std::make_unique<Limit>();
}

} // namespace bench
