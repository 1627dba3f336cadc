#include "check.h"

#include <quarlo/grf_file.h>

namespace grf {
namespace {

const char* wordsFor(GGrfFault fault) {
    switch (fault) {
    case G_GRF_FAULT_HEADER_CUT:
        return "the file ends in its header";
    case G_GRF_FAULT_MARK:
        return "no GRF file: it does not begin with QGRF";
    case G_GRF_FAULT_VERSION:
        return "unknown version";
    case G_GRF_FAULT_TYPE:
        return "unknown type";
    case G_GRF_FAULT_WIDTH:
        return "width outside 1 to 32767";
    case G_GRF_FAULT_HEIGHT:
        return "height outside 1 to 32767";
    case G_GRF_FAULT_BITS:
        return "bits that no image of this type has";
    case G_GRF_FAULT_COLOR_COUNT:
        return "number of colours that no image of this type and bits has";
    case G_GRF_FAULT_MASKS:
        return "channel masks that no surface of these bits has";
    case G_GRF_FAULT_PALETTE_CUT:
        return "the file ends in its palette";
    case G_GRF_FAULT_LENGTH:
        return "the stream has another length than the rest of the file";
    case G_GRF_FAULT_RUN_CUT:
        return "run cut off by the end of the stream";
    case G_GRF_FAULT_NO_END:
        return "the stream has no 0 at its end";
    case G_GRF_FAULT_BEHIND_LAST_ROW:
        return "run past the last row";
    case G_GRF_FAULT_NO_COLOR:
        return "index that the palette does not have";
    case G_GRF_FAULT_BYTES_AFTER_END:
        return "bytes behind the end of the stream";
    }
    return "unknown fault";
}

} // namespace

std::vector<Finding> check(std::span<const uint8_t> file) {
    std::vector<Finding> findings;
    const auto report = [](void* context, GGrfFault fault, size_t offset) {
        static_cast<std::vector<Finding>*>(context)->push_back({offset, wordsFor(fault)});
    };
    GGrfFile opened;
    GGrfInspectFile(&opened, file.data(), file.size(), report, &findings);
    return findings;
}

} // namespace grf
