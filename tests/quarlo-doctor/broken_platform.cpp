// The host platform with one fault, which the environment chooses: what quarlo-doctor has to find.
//
// BROKEN_OVER is the path of the host platform; BROKEN_FAULT names the fault.
#include <gpi/gpi.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <utility>

#include <dlfcn.h>
#include <unistd.h>

namespace {

/// A service of the sound platform.
template <typename Function>
Function sound(int32_t number) {
    static void* const library = dlopen(std::getenv("BROKEN_OVER"), RTLD_NOW | RTLD_LOCAL);
    static const auto getService =
        reinterpret_cast<decltype(&GPIGetService)>(dlsym(library, "GPIGetService"));
    return reinterpret_cast<Function>(getService(number));
}

// Each does too much, too little or nothing at all.

GWord startsNothing(GWord) {
    return 0;
}

GVram* getsNoSurface(GDrawHandle*, int32_t) {
    return nullptr;
}

/// Surface 0 as it is, with one field changed.
template <auto Change>
GVram* getsOddSurface(GDrawHandle* handle, int32_t number) {
    GVram* const surface = sound<GPIGetSurface>(GPI_SERVICE_GET_SURFACE)(handle, number);
    if (surface == nullptr) {
        return nullptr;
    }
    static GVram odd;
    odd = *surface;
    Change(odd);
    return &odd;
}

void hasOtherId(GVram& surface) {
    surface.id = 7;
}

void hasHugeExtent(GVram& surface) {
    surface.width = 2561;
}

void hasOddFormat(GVram& surface) {
    surface.bitsPerPixel = 12;
}

void hasShortRows(GVram& surface) {
    surface.bytesPerLine = 1;
}

void hasEqualMasks(GVram& surface) {
    surface.greenMask = surface.redMask;
}

void hasNoDrawable(GVram& surface) {
    surface.drawable = nullptr;
}

int32_t setsNeighbour(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                      int32_t mode) {
    return sound<GPISetPixel>(GPI_SERVICE_SET_PIXEL)(handle, surface, static_cast<int16_t>(x + 1),
                                                     y, pixel, mode);
}

int32_t copiesAlways(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                     int32_t) {
    return sound<GPISetPixel>(GPI_SERVICE_SET_PIXEL)(handle, surface, x, y, pixel, G_MODE_COPY);
}

int32_t drawsOneMore(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                     int32_t mode, int16_t count) {
    return sound<GPISpan>(GPI_SERVICE_SPAN)(handle, surface, x, y, pixel, mode,
                                            static_cast<int16_t>(count + 1));
}

int32_t showsNothing(GDrawHandle*, int16_t, int16_t, int16_t, int16_t) {
    return 0;
}

void* allocatesOddly(int32_t space, uint32_t flags, int32_t size) {
    const auto alloc = sound<GPIMemoryAlloc>(GPI_SERVICE_MEMORY_ALLOC);
    void* const block = alloc(space, flags, size > 0 ? size + 1 : size);
    return block != nullptr ? static_cast<char*>(block) + 1 : nullptr;
}

void* allocatesOneBlock(int32_t, uint32_t, int32_t) {
    alignas(16) static char block[1000];
    return block;
}

void* allocatesEmptyBlocks(int32_t space, uint32_t flags, int32_t size) {
    return sound<GPIMemoryAlloc>(GPI_SERVICE_MEMORY_ALLOC)(space, flags, size > 0 ? size : 1);
}

int32_t freesNothing(int32_t, uint32_t, void*) {
    return 0;
}

int32_t standsStill(GSystemTime* time) {
    *time = {5, 0};
    return 1;
}

int32_t runsBackwards(GSystemTime* time) {
    static uint32_t left = 1000000000;
    *time = {left--, 0};
    return 1;
}

int32_t countsSeconds(GSystemTime* time) {
    using namespace std::chrono;
    const auto now = steady_clock::now().time_since_epoch();
    *time = {
        static_cast<uint32_t>(duration_cast<duration<int64_t, std::ratio<1, 40>>>(now).count()), 0};
    return 1;
}

int32_t locksOnce(int32_t) {
    static bool locked = false;
    return std::exchange(locked, true) ? -1 : 1;
}

int32_t waitsForEver(int32_t) {
    for (;;) {
        pause();
    }
}

int32_t neverWaits(int32_t) {
    return 0;
}

int32_t alwaysSignalled(int32_t) {
    return 1;
}

int32_t countsNothing(const char16_t*, int32_t) {
    return 0;
}

const char16_t* crashes(const char16_t*, const char16_t*, uint32_t*) {
    std::raise(SIGSEGV);
    return nullptr;
}

int32_t endsTheProcess(const char16_t*, int32_t, char*, int32_t) {
    _exit(3);
}

GFontRecord* loadsNothing(const char16_t*) {
    return nullptr;
}

int32_t findsNothing(GFontRecord*, GGlyphRequest*) {
    return 0;
}

/// The glyph as it is, with one field of the answer changed.
template <auto Change>
int32_t findsOddGlyph(GFontRecord* font, GGlyphRequest* request) {
    const int32_t found = sound<GPIGlyph>(GPI_SERVICE_GLYPH)(font, request);
    Change(*request);
    return found;
}

void isBlank(GGlyphRequest& glyph) {
    static const uint8_t blank[64] = {};
    glyph.width = glyph.height = 8;
    glyph.bits = blank;
}

void hasNoBitmap(GGlyphRequest& glyph) {
    glyph.bits = nullptr;
}

void staysWhereItIs(GGlyphRequest& glyph) {
    glyph.next = glyph.text;
}

GFile* opensAnything(const char16_t*, uint32_t, int32_t*) {
    static char file;
    return reinterpret_cast<GFile*>(&file);
}

int32_t forgetsFallback(const char16_t*, const char16_t*, int32_t, uint32_t, const char16_t*) {
    return 0;
}

int32_t knowsEverything(int32_t, int32_t*) {
    return 1;
}

struct Fault {
    std::string_view name;
    int32_t number;
    GPIFunction function; ///< null: the service is missing
};

template <typename Type>
GPIFunction as(Type function) {
    return reinterpret_cast<GPIFunction>(function);
}

const Fault kFaults[] = {
    {"no-start", GPI_SERVICE_START_SECOND, as<GPIStartSecond>(startsNothing)},
    {"no-surface", GPI_SERVICE_GET_SURFACE, as<GPIGetSurface>(getsNoSurface)},
    {"other-id", GPI_SERVICE_GET_SURFACE, as<GPIGetSurface>(getsOddSurface<hasOtherId>)},
    {"huge-extent", GPI_SERVICE_GET_SURFACE, as<GPIGetSurface>(getsOddSurface<hasHugeExtent>)},
    {"odd-format", GPI_SERVICE_GET_SURFACE, as<GPIGetSurface>(getsOddSurface<hasOddFormat>)},
    {"short-rows", GPI_SERVICE_GET_SURFACE, as<GPIGetSurface>(getsOddSurface<hasShortRows>)},
    {"equal-masks", GPI_SERVICE_GET_SURFACE, as<GPIGetSurface>(getsOddSurface<hasEqualMasks>)},
    {"no-drawable", GPI_SERVICE_GET_SURFACE, as<GPIGetSurface>(getsOddSurface<hasNoDrawable>)},
    {"neighbour", GPI_SERVICE_SET_PIXEL, as<GPISetPixel>(setsNeighbour)},
    {"copies-always", GPI_SERVICE_SET_PIXEL, as<GPISetPixel>(copiesAlways)},
    {"one-more", GPI_SERVICE_SPAN, as<GPISpan>(drawsOneMore)},
    {"shows-nothing", GPI_SERVICE_FLUSH, as<GPIFlush>(showsNothing)},
    {"unaligned", GPI_SERVICE_MEMORY_ALLOC, as<GPIMemoryAlloc>(allocatesOddly)},
    {"one-block", GPI_SERVICE_MEMORY_ALLOC, as<GPIMemoryAlloc>(allocatesOneBlock)},
    {"empty-blocks", GPI_SERVICE_MEMORY_ALLOC, as<GPIMemoryAlloc>(allocatesEmptyBlocks)},
    {"frees-nothing", GPI_SERVICE_MEMORY_FREE, as<GPIMemoryFree>(freesNothing)},
    {"stands-still", GPI_SERVICE_GET_SYSTEM_TIME, as<GPIGetSystemTime>(standsStill)},
    {"backwards", GPI_SERVICE_GET_SYSTEM_TIME, as<GPIGetSystemTime>(runsBackwards)},
    {"other-unit", GPI_SERVICE_GET_SYSTEM_TIME, as<GPIGetSystemTime>(countsSeconds)},
    {"locks-once", GPI_SERVICE_LOCK_EVENTS, as<GPILockEvents>(locksOnce)},
    {"hangs", GPI_SERVICE_WAIT_EVENT, as<GPIWaitEvent>(waitsForEver)},
    {"never-waits", GPI_SERVICE_WAIT_EVENT, as<GPIWaitEvent>(neverWaits)},
    {"always-signalled", GPI_SERVICE_WAIT_EVENT, as<GPIWaitEvent>(alwaysSignalled)},
    {"counts-nothing", GPI_SERVICE_STRING_LENGTH, as<GPIStringLength>(countsNothing)},
    {"crashes", GPI_SERVICE_PREVIOUS_CHAR, as<GPIPreviousChar>(crashes)},
    {"ends", GPI_SERVICE_UNICODE_TO_MULTI_BYTE, as<GPIUnicodeToMultiByte>(endsTheProcess)},
    {"no-font", GPI_SERVICE_LOAD_FONT, as<GPILoadFont>(loadsNothing)},
    {"no-glyph", GPI_SERVICE_GLYPH, as<GPIGlyph>(findsNothing)},
    {"blank-glyph", GPI_SERVICE_GLYPH, as<GPIGlyph>(findsOddGlyph<isBlank>)},
    {"no-bitmap", GPI_SERVICE_GLYPH, as<GPIGlyph>(findsOddGlyph<hasNoBitmap>)},
    {"no-step", GPI_SERVICE_GLYPH, as<GPIGlyph>(findsOddGlyph<staysWhereItIs>)},
    {"opens-anything", GPI_SERVICE_OPEN_FILE, as<GPIOpenFile>(opensAnything)},
    {"no-fallback", GPI_SERVICE_GET_PROFILE_INT, as<GPIGetProfileInt>(forgetsFallback)},
    {"knows-everything", GPI_SERVICE_GET_NC_SYSTEM_VALUE, as<GPIGetNCSystemValue>(knowsEverything)},
    {"no-span", GPI_SERVICE_SPAN, nullptr},
    {"no-flush", GPI_SERVICE_FLUSH, nullptr},
    {"no-palette", GPI_SERVICE_SET_PALETTE, nullptr},
    {"no-signal", GPI_SERVICE_SIGNAL_EVENT, nullptr},
};

} // namespace

GPIFunction GPIGetService(int32_t number) {
    const char* const name = std::getenv("BROKEN_FAULT");
    for (const Fault& fault : kFaults) {
        if (name != nullptr && fault.name == name && fault.number == number) {
            return fault.function;
        }
    }
    return sound<GPIFunction>(number);
}

int32_t GPIGetFontCount(void) {
    return 0;
}

void GPIShutdownEvents(void) {}

void GPITranslateMessage(GMessage*) {}

void GPIDispatchMessage(GMessage*) {}
