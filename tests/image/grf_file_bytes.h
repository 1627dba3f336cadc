// GRF files put together field by field, right or wrong.
#pragma once

#include <quarlo/grf_file.h>

#include <cstdint>
#include <vector>

namespace quarlo::test {

using FileBytes = std::vector<uint8_t>;

/// The fields of a file.
struct GrfFields {
    uint16_t version;
    uint16_t type;
    uint16_t width;
    uint16_t height;
    uint16_t bits;
    std::vector<uint32_t> palette;
    uint32_t red;
    uint32_t green;
    uint32_t blue;
    FileBytes stream;
};

inline void appendNumber(FileBytes& file, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        file.push_back(static_cast<uint8_t>(value >> (8 * i)));
    }
}

inline FileBytes bytesOf(const GrfFields& fields) {
    FileBytes file = {'Q', 'G', 'R', 'F'};
    for (const uint16_t field : {fields.version, fields.type, fields.width, fields.height,
                                 fields.bits, static_cast<uint16_t>(fields.palette.size())}) {
        appendNumber(file, field, 2);
    }
    for (const uint32_t mask : {fields.red, fields.green, fields.blue}) {
        appendNumber(file, mask, 4);
    }
    appendNumber(file, static_cast<uint32_t>(fields.stream.size()), 4);
    for (const uint32_t color : fields.palette) {
        appendNumber(file, color, 4);
    }
    file.insert(file.end(), fields.stream.begin(), fields.stream.end());
    return file;
}

/// A direct image of 4 x 2 pixels in 3-3-2.
inline GrfFields directFields() {
    const FileBytes stream = {0xC3, 7, 0x01, 0xAA, 0x44, 1, 2, 3, 4, 0};
    return {G_GRF_FILE_VERSION, G_GRF_DIRECT, 4, 2, 8, {}, 0xE0, 0x1C, 0x03, stream};
}

/// A direct image of 3 x 2 pixels in 5-5-5.
inline GrfFields wideFields() {
    const FileBytes stream = {0x42, 0x34, 0x12, 0x00, 0x00, 0xC4, 0xFF, 0x7F, 0};
    return {G_GRF_FILE_VERSION, G_GRF_DIRECT, 3, 2, 16, {}, 0x7C00, 0x03E0, 0x001F, stream};
}

/// A packed image of 5 x 2 pixels, 4 bits each, in three colours of 5-6-5.
inline GrfFields packedFields() {
    const std::vector<uint32_t> palette = {0x1234, 0xF800, 0x001F};
    const FileBytes stream = {0x42, 0x12, 0x20, 0x02, 0, 0xC2, 0x21, 0};
    return {G_GRF_FILE_VERSION, G_GRF_PALETTE, 5, 2, 4, palette, 0xF800, 0x07E0, 0x001F, stream};
}

/// A direct image of 4 x 2 indexes into three colours.
inline GrfFields indexedFields() {
    const std::vector<uint32_t> palette = {0x000000, 0xFF0000, 0xFFFFFF};
    const FileBytes stream = {0x44, 0, 1, 2, 1, 0xC4, 2, 0};
    return {G_GRF_FILE_VERSION, G_GRF_DIRECT, 4, 2, 8, palette, 0, 0, 0, stream};
}

} // namespace quarlo::test
