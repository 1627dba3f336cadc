#include "raster/kernel/kernels.h"

#include "raster/kernel/fill.h"
#include "raster/kernel/line.h"
#include "raster/kernel/mode.h"
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
    putPixel<Format, Mode>,
};

template <typename Format>
constexpr const Kernels* kModes[] = {&kKernels<Format, Copy>, &kKernels<Format, And>,
                                     &kKernels<Format, Or>, &kKernels<Format, Xor>};

} // namespace

const Kernels* kernelsFor(int32_t bitsPerPixel, int32_t mode) {
    if (mode < 0 || mode > 3) {
        return nullptr;
    }
    switch (bitsPerPixel) {
    case 8:
        return kModes<Format8>[mode];
    case 16:
        return kModes<Format16>[mode];
    case 24:
        return kModes<Format24>[mode];
    default:
        return nullptr;
    }
}

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
