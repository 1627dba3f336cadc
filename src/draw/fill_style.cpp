// Fill styles and patterns.
#include <quarlo/handle.h>

#include <algorithm>

void GDSetFillPattern(GDrawHandle* handle, int32_t number) {
    const auto pattern = static_cast<int16_t>(number);
    handle->fillPattern =
        pattern < 0 ? pattern : static_cast<int16_t>(pattern % G_FILL_PATTERN_COUNT);
}

void GDSetFillAttribute(GDrawHandle* handle, int32_t pattern, uint32_t fore, uint32_t back) {
    GDSetFillPattern(handle, pattern);
    GDSetFillColor(handle, fore, back);
}

void GDSetBrush(GDrawHandle* handle, const GBrush* brush) {
    GDSetFillAttribute(handle, brush->pattern, brush->fore, brush->back);
}

void GDDefineFillPattern(GDrawHandle* handle, int16_t number, const uint8_t rows[8]) {
    if (number >= 0 && number < G_FILL_PATTERN_COUNT) {
        std::copy_n(rows, 8, handle->fillPatterns[number]);
    }
}

void GDSetGradationInfo(GDrawHandle* handle, const GGradationInfo* info) {
    handle->gradation = *info;
}
