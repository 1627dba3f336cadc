#include "raster/kernel/kernels.h"

#include "raster/kernel/fill.h"
#include "raster/kernel/glyph.h"
#include "raster/kernel/line.h"
#include "raster/kernel/mode.h"
#include "raster/kernel/runs.h"
#include "raster/kernel/spans.h"

namespace quarlo::kernel {
namespace {

template <typename Format, typename Mode>
constexpr Kernels kKernels = {
    Format::kBytes,
    fill<Format, Mode>,
    fillPattern<Format, Mode>,
    fillSpans<Format, Mode>,
    fillPatternSpans<Format, Mode>,
    line<Format, Mode>,
    dashedLine<Format, Mode>,
    drawGlyph<Format, Mode, false>,
    drawGlyph<Format, Mode, true>,
    drawRuns<Format, Mode>,
    putBytes<Format, Mode>,
    putPixel<Format, Mode>,
};

} // namespace

const Kernels kernelTable[3][4] = {
    {kKernels<Format8, Copy>, kKernels<Format8, And>, kKernels<Format8, Or>,
     kKernels<Format8, Xor>},
    {kKernels<Format16, Copy>, kKernels<Format16, And>, kKernels<Format16, Or>,
     kKernels<Format16, Xor>},
    {kKernels<Format24, Copy>, kKernels<Format24, And>, kKernels<Format24, Or>,
     kKernels<Format24, Xor>},
};

uint32_t readPixel(const uint8_t* at, int32_t bitsPerPixel) {
    switch (bitsPerPixel) {
    case 8:
        return loadPixel<Format8>(at);
    case 16:
        return loadPixel<Format16>(at);
    default:
        return loadPixel<Format24>(at);
    }
}

} // namespace quarlo::kernel
