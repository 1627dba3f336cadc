#include "display/canvas/canvas_back_end.h"

#include <emscripten.h>

#include <utility>

// In page.js; each runs in the page's thread, whoever calls it.
extern "C" {
/// Makes the canvas that large, and tells the back end what a person does there.
void gpiPageOpen(gpi::CanvasBackEnd* backEnd, int width, int height);
void gpiPageClose();

/// Has the page call gpiCanvasPut(), now or soon.
void gpiPageSettle(gpi::CanvasBackEnd* backEnd);
void gpiPageAsk(gpi::CanvasBackEnd* backEnd);

/// Puts words of the bytes red, green, blue, opaque on the canvas. For the page's thread.
void gpiPagePut(const uint32_t* pixels, int left, int top, int width, int height);
}

namespace gpi {
namespace {

/// As the bytes red, green, blue, opaque.
constexpr uint32_t bytesOf(uint32_t rgb) {
    return 0xFF000000 | (rgb & 0xFF) << 16 | (rgb & 0xFF00) | (rgb >> 16 & 0xFF);
}

} // namespace

CanvasBackEnd::CanvasBackEnd(const Frame& frame, Input& input)
    : size_{frame.width, frame.height},
      input_(input),
      rgb_(static_cast<size_t>(frame.width) * static_cast<size_t>(frame.height)),
      projection_(View(), size_, size_) {
    gpiPageOpen(this, frame.width, frame.height);
    const GRect whole = wholeArea(frame.width, frame.height);
    CanvasBackEnd::show(frame, {&whole, 1});
}

CanvasBackEnd::~CanvasBackEnd() {
    gpiPageClose(); // behind all that was asked
}

/// @param change of what is guarded, under the lock
template <typename Change>
void CanvasBackEnd::change(const Change& change) {
    std::unique_lock lock(mutex_);
    change();
    const bool knows = std::exchange(asked_, true);
    lock.unlock();
    if (!knows) {
        gpiPageAsk(this);
    }
}

void CanvasBackEnd::show(const Frame& frame, std::span<const GRect> areas) {
    change([&] {
        for (const GRect& area : areas) {
            convertToRgb(frame, area, rgb_);
            missing_.add(projection_.onScreen(area));
        }
    });
}

void CanvasBackEnd::setView(const View& view) {
    change([&] {
        projection_ = Projection(view, size_, size_);
        missing_.add(wholeArea(size_.width, size_.height));
    });
}

void CanvasBackEnd::settle() {
    gpiPageSettle(this);
}

bool CanvasBackEnd::waitForClose() {
    std::unique_lock lock(mutex_);
    closed_.wait(lock, [] { return false; }); // the browser ends a program with its page
    return true;
}

CanvasBackEnd::Patch CanvasBackEnd::patchOf(const GRect& area) const {
    const auto width = static_cast<size_t>(widthOf(area));
    Patch patch{area, std::vector<uint32_t>(width * static_cast<size_t>(heightOf(area)))};
    uint32_t* to = patch.pixels.data();
    for (int y = area.top; y <= area.bottom; ++y, to += width) {
        projection_.copyRow(rgb_, y, area.left, widthOf(area), to);
    }
    for (uint32_t& pixel : patch.pixels) {
        pixel = bytesOf(pixel);
    }
    return patch;
}

void CanvasBackEnd::put() {
    std::vector<Patch> patches;
    {
        const std::lock_guard lock(mutex_);
        for (const GRect& area : missing_.areas()) {
            patches.push_back(patchOf(area));
        }
        missing_.clear();
        asked_ = false;
    }
    for (const Patch& patch : patches) {
        gpiPagePut(patch.pixels.data(), patch.area.left, patch.area.top, widthOf(patch.area),
                   heightOf(patch.area));
    }
}

bool CanvasBackEnd::key(const char* code, const char* character, bool down) {
    return input_.key(code, character, down);
}

void CanvasBackEnd::pointer(int x, int y, int buttons) {
    std::unique_lock lock(mutex_);
    const auto pixel = projection_.pixelAt(x, y);
    lock.unlock();
    input_.pointer(pixel, buttons);
}

void CanvasBackEnd::leave() {
    input_.leave();
}

} // namespace gpi

// What page.js calls.
extern "C" {

EMSCRIPTEN_KEEPALIVE void gpiCanvasPut(gpi::CanvasBackEnd* backEnd) {
    backEnd->put();
}

EMSCRIPTEN_KEEPALIVE int gpiCanvasKey(gpi::CanvasBackEnd* backEnd, const char* code,
                                      const char* character, int down) {
    return backEnd->key(code, character, down != 0) ? 1 : 0;
}

EMSCRIPTEN_KEEPALIVE void gpiCanvasPointer(gpi::CanvasBackEnd* backEnd, int x, int y, int buttons) {
    backEnd->pointer(x, y, buttons);
}

EMSCRIPTEN_KEEPALIVE void gpiCanvasLeave(gpi::CanvasBackEnd* backEnd) {
    backEnd->leave();
}
}
