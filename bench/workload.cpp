#include "workload.h"

#include <algorithm>
#include <span>

namespace bench {
namespace {

constexpr Format kFormats[] = {Format::Rgb332, Format::Rgb565, Format::Rgb24};
constexpr Mode kModes[] = {Mode::Copy, Mode::And, Mode::Or, Mode::Xor};
constexpr Step kSteps[] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}};

struct Extent {
    int width;
    int height;
};
constexpr Extent kExtents[] = {{8, 8}, {16, 16}, {32, 32}, {100, 100}, {kWidth, kHeight}};

struct Conversion {
    Format from;
    Format to;
};
constexpr Conversion kConversions[] = {
    {Format::Rgb555, Format::Rgb24},    {Format::Rgb24, Format::Rgb555},
    {Format::Rgb565, Format::Rgb24},    {Format::Rgb24, Format::Rgb565},
    {Format::Rgb555, Format::Rgb565},   {Format::Rgb565, Format::Rgb555},
    {Format::Rgb332, Format::Rgb565},   {Format::Rgb332, Format::Rgb24},
    {Format::Palette8, Format::Rgb555}, {Format::Palette8, Format::Rgb565},
    {Format::Palette8, Format::Rgb24},
};

/// What a workload of one operation covers, at the extents of rectangles.
Extent extentFor(Operation operation, Extent extent) {
    switch (operation) {
    case Operation::Span:
        return {extent.width, 1};
    case Operation::Column:
        return {1, extent.height};
    case Operation::Line:
    case Operation::LineTo:
    case Operation::Dash:
        return extent.width == kWidth ? Extent{0, 0} : extent;
    default:
        return extent;
    }
}

const char* nameOf(Operation operation) {
    switch (operation) {
    case Operation::Fill:
        return "fill";
    case Operation::Pattern:
        return "pattern";
    case Operation::Span:
        return "span";
    case Operation::Column:
        return "column";
    case Operation::Line:
        return "line";
    case Operation::LineTo:
        return "lineto";
    case Operation::Dash:
        return "dash";
    case Operation::Transfer:
        return "transfer";
    case Operation::Scroll:
        return "scroll";
    case Operation::Convert:
        return "convert";
    case Operation::WideLine:
        return "wideline";
    case Operation::Triangle:
        return "triangle";
    case Operation::Star:
        return "star";
    case Operation::Ragged:
        return "ragged";
    case Operation::Scribble:
        return "scribble";
    case Operation::Oval:
        return "oval";
    case Operation::OvalLine:
        return "ovalline";
    case Operation::RoundRect:
        return "roundrect";
    case Operation::RoundRectLine:
        return "roundrectline";
    case Operation::Arc:
        return "arc";
    case Operation::Pie:
        return "pie";
    case Operation::Bezier:
        return "bezier";
    case Operation::Text:
        return "text";
    case Operation::OpaqueText:
        return "opaquetext";
    case Operation::Caption:
        return "caption";
    case Operation::Measure:
        return "measure";
    case Operation::Image:
        return "image";
    case Operation::ImageRight:
        return "imageright";
    case Operation::ImageLower:
        return "imagelower";
    case Operation::ImageZoom:
        return "imagezoom";
    }
    return "";
}

const char* nameOf(Mode mode) {
    constexpr const char* kNames[] = {"copy", "and", "or", "xor"};
    return kNames[static_cast<int>(mode)];
}

const char* nameOf(Step step) {
    if (step.y != 0) {
        return step.y < 0 ? "up" : "down";
    }
    return step.x < 0 ? "left" : "right";
}

/// Formats of one size take the same time in everything but conversions, so their size names them.
std::string nameOf(Format format) {
    return std::to_string(8 * bytesPerPixel(format));
}

std::string channelsOf(Format format) {
    constexpr const char* kNames[] = {"332", "555", "565", "888", "palette"};
    return kNames[static_cast<int>(format)];
}

std::string sizeOf(const Workload& workload) {
    const int size = std::max(workload.width, workload.height);
    const bool whole = workload.width == kWidth || workload.height == kHeight || size == 0;
    return whole ? "full" : std::to_string(size);
}

void addRectangular(std::vector<Workload>& list, Operation operation) {
    for (const Extent& extent : kExtents) {
        const Extent covered = extentFor(operation, extent);
        for (const Format format : kFormats) {
            for (const Mode mode : kModes) {
                list.push_back(
                    {operation, covered.width, covered.height, format, format, mode, {}});
            }
        }
    }
}

void addScrolls(std::vector<Workload>& list) {
    for (const Step step : kSteps) {
        for (const Format format : kFormats) {
            list.push_back({Operation::Scroll, kWidth, kHeight, format, format, Mode::Copy, step});
        }
    }
}

/// Sizes make little difference here, so only two are measured.
void addConversions(std::vector<Workload>& list) {
    for (const Extent& extent : {kExtents[1], kExtents[4]}) {
        for (const auto& [from, to] : kConversions) {
            for (const Mode mode : kModes) {
                list.push_back(
                    {Operation::Convert, extent.width, extent.height, to, from, mode, {}});
            }
        }
    }
}

struct Shape {
    Operation operation;
    Extent extent;
};
constexpr Shape kShapes[] = {
    {Operation::Triangle, {100, 100}}, {Operation::Star, {201, 201}},
    {Operation::Ragged, {400, 400}},   {Operation::Scribble, {400, 400}},
    {Operation::Oval, {101, 61}},      {Operation::OvalLine, {101, 61}},
    {Operation::RoundRect, {100, 60}}, {Operation::RoundRectLine, {100, 60}},
    {Operation::Arc, {98, 98}},        {Operation::Pie, {98, 98}},
    {Operation::Bezier, {100, 100}},
};

constexpr Shape kTexts[] = {
    {Operation::Text, {320, 16}},
    {Operation::OpaqueText, {320, 16}},
    {Operation::Caption, {320, 80}},
    {Operation::Measure, {320, 16}},
};
constexpr Shape kImages[] = {
    {Operation::Image, {200, 200}},      {Operation::ImageRight, {200, 200}},
    {Operation::ImageLower, {200, 200}}, {Operation::ImageZoom, {300, 300}},
    {Operation::ImageZoom, {100, 100}},
};

bool isOneOf(std::span<const Shape> shapes, Operation operation) {
    return std::any_of(shapes.begin(), shapes.end(),
                       [=](const Shape& shape) { return shape.operation == operation; });
}

void addCopied(std::vector<Workload>& list, Operation operation, Extent extent) {
    for (const Format format : kFormats) {
        list.push_back({operation, extent.width, extent.height, format, format, Mode::Copy, {}});
    }
}

} // namespace

std::vector<Workload> allWorkloads() {
    std::vector<Workload> list;
    for (const Operation operation :
         {Operation::Fill, Operation::Pattern, Operation::Span, Operation::Column, Operation::Line,
          Operation::Dash, Operation::Transfer}) {
        addRectangular(list, operation);
    }
    addCopied(list, Operation::LineTo, {100, 100});
    addCopied(list, Operation::WideLine, {100, 100});
    addScrolls(list);
    addConversions(list);
    for (const std::span<const Shape> shapes :
         {std::span<const Shape>(kShapes), std::span<const Shape>(kTexts),
          std::span<const Shape>(kImages)}) {
        for (const auto& [operation, extent] : shapes) {
            addCopied(list, operation, extent);
        }
    }
    return list;
}

std::string nameOf(const Workload& workload) {
    const bool scrolls = workload.operation == Operation::Scroll;
    const bool converts = workload.operation == Operation::Convert;
    std::string name = nameOf(workload.operation);
    name += '/' + (scrolls ? nameOf(workload.step) : sizeOf(workload));
    name += '/' + (converts ? channelsOf(workload.source) + '-' + channelsOf(workload.format)
                            : nameOf(workload.format));
    return name + '/' + nameOf(workload.mode);
}

bool isLine(Operation operation) {
    return operation == Operation::Line || operation == Operation::LineTo ||
           operation == Operation::Dash || operation == Operation::WideLine;
}

bool isShape(Operation operation) {
    return isOneOf(kShapes, operation);
}

bool isText(Operation operation) {
    return isOneOf(kTexts, operation);
}

bool isImage(Operation operation) {
    return isOneOf(kImages, operation);
}

} // namespace bench
