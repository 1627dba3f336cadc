#include "every_call/panel.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace quarlo::test {

namespace {

/// Four pixels of a value, two of others, and the end. As rows of a pattern it is one too.
constexpr uint8_t kStream[] = {0xC4, 0x01, 0x42, 0x02, 0x03, 0x00, 0xAA, 0x55};
constexpr size_t kMostThings = 8;

template <typename Thing>
void add(std::vector<Thing*>& things, Thing* thing) {
    if (thing != nullptr) {
        things.push_back(thing);
    }
}

template <typename Thing>
Thing* takeLast(std::vector<Thing*>& things) {
    if (things.empty()) {
        return nullptr;
    }
    Thing* const last = things.back();
    things.pop_back();
    return last;
}

int compareBytes(const void* key, const void* element) {
    return std::memcmp(key, element, 1);
}

} // namespace

Panel::Panel(RecordingPlatform& platform, Numbers& numbers)
    : numbers_(numbers), font_(platform, 4), handle_(GDOpenDrawHandle(0, 0)) {
    platform.answer(GPI_SERVICE_LOAD_FONT, asWord(font_.get()));
    image_ = {G_GRF_DIRECT, 3, 2, 8, sizeof kStream, kStream, nullptr};
    if (hasHandle()) {
        GDSetFont(handle_, font_.get());
    }
    addSurface(GDCreateVVram(12, 9, 16));
}

Panel::~Panel() {
    std::for_each(surfaces_.begin(), surfaces_.end(), GDDeleteVram);
    std::for_each(moreHandles_.begin(), moreHandles_.end(), GDCloseDrawHandle);
    std::for_each(typedBlocks_.begin(), typedBlocks_.end(), GMGMemDelete);
    while (!blocks_.empty()) {
        free();
    }
    for (const auto& [target, id] : timers_) {
        GEKillTimer(target, id);
    }
    closeOwnHandle();
    GESetForceEventFlag(0);
    GEQuitEvent();
    GDInitBackupClipBuf();
}

/// The handle leaves its memory surface to the program.
void Panel::closeOwnHandle() {
    if (hasHandle()) {
        GVram* const target = handle_->target;
        GDCloseDrawHandle(handle_);
        GDDeleteVram(target);
    }
}

void Panel::startCall() {
    std::for_each_n(rooms_.begin(), roomsUsed_, [](Room& used) { used = {}; });
    roomsUsed_ = 0;
}

void* Panel::room() {
    return rooms_.at(roomsUsed_++).bytes.data();
}

template <typename Record>
Record* Panel::keep(const Record& record) {
    return new (room()) Record(record);
}

GPoint* Panel::pointer(const GPoint*) {
    const auto x = number<int16_t>(7);
    return keep(GPoint{x, number<int16_t>(5)});
}

GRect* Panel::pointer(const GRect*) {
    std::array<GRect, 4> rects{};
    const auto left = number<int16_t>(2);
    const auto top = number<int16_t>(1);
    const auto right = number<int16_t>(18);
    rects.fill({left, top, right, number<int16_t>(13)});
    return keep(rects)->data();
}

GLine* Panel::pointer(const GLine*) {
    const GPoint from = *pointer(static_cast<const GPoint*>(nullptr));
    const auto x = number<int16_t>(20);
    return keep(GLine{from.x, from.y, x, number<int16_t>(11)});
}

GPoly* Panel::pointer(const GPoly*) {
    constexpr GPoint kUsual[] = {{1, 1}, {17, 3}, {12, 14}, {3, 9}};
    for (size_t i = 0; i < points_.size(); ++i) {
        const auto x = number<int16_t>(kUsual[i].x);
        points_[i] = {x, number<int16_t>(kUsual[i].y)};
        points_[i].x = x == G_TABLE_EDGE ? int16_t{0} : x; // no table stands behind these
    }
    return keep(GPoly{static_cast<int16_t>(points_.size()), points_.data(), {0, 0, 20, 20}});
}

GBrush* Panel::pointer(const GBrush*) {
    const auto pattern = number<int32_t>(4);
    const auto fore = number<uint32_t>(0xFF00FF);
    return keep(GBrush{pattern, fore, number<uint32_t>(0x00FF00)});
}

GGradationInfo* Panel::pointer(const GGradationInfo*) {
    const auto direction = number<uint8_t>(G_GRADATION_DOWN);
    const auto start = number<uint32_t>(0x102030);
    const auto end = number<uint32_t>(0xE0D0C0);
    const auto lead = number<uint16_t>(2);
    return keep(GGradationInfo{direction, start, end, lead, number<uint16_t>(6)});
}

GBorderStyle* Panel::pointer(const GBorderStyle*) {
    const auto enabled = number<int32_t>(1);
    const auto light = number<uint32_t>(0xFFFFFF);
    const auto dark = number<uint32_t>(0x404040);
    const auto frame = number<uint32_t>(0);
    return keep(GBorderStyle{enabled, light, dark, frame, number<int16_t>(3)});
}

GCaptionAttr* Panel::pointer(const GCaptionAttr*) {
    const auto color = number<uint32_t>(0xFFFFFF);
    const auto horizontal = number<uint8_t>(G_ALIGN_CENTRE);
    const auto vertical = number<uint8_t>(G_ALIGN_MIDDLE);
    const auto side = number<int16_t>(1);
    const auto end = number<int16_t>(2);
    return keep(GCaptionAttr{color, horizontal, vertical, side, side, end, end});
}

GCaptionCursor* Panel::pointer(const GCaptionCursor*) {
    const auto style = number<uint8_t>(1);
    return keep(GCaptionCursor{style, number<uint32_t>(0xFF0000)});
}

GCaptionSelect* Panel::pointer(const GCaptionSelect*) {
    const auto shown = number<uint8_t>(1);
    const auto first = number<uint16_t>(1);
    const auto last = number<uint16_t>(4);
    return keep(GCaptionSelect{shown, first, last, number<uint32_t>(0x0000FF)});
}

GSystemTime* Panel::pointer(const GSystemTime*) {
    const auto low = number<uint32_t>(5000);
    return keep(GSystemTime{low, number<int32_t>(0)});
}

const uint8_t* Panel::pointer(const uint8_t*) {
    return kStream;
}

GUBCompare Panel::pointer(GUBCompare) {
    return compareBytes;
}

GEventMsg Panel::event() {
    const auto type = number<uint16_t>(G_EVENT_TIMER);
    const auto target = number<uint32_t>(3);
    return {type, target, number<uint32_t>(8), 0, {0, 0}};
}

void Panel::openHandle(GWord first, GWord second) {
    if (moreHandles_.size() < kMostThings) {
        add(moreHandles_, GDOpenDrawHandle(first, second));
    }
}

void Panel::closeHandle() {
    GDCloseDrawHandle(takeLast(moreHandles_));
}

void Panel::addSurface(GVram* surface) {
    if (surfaces_.size() < kMostThings) {
        add(surfaces_, surface);
    } else {
        GDDeleteVram(surface);
    }
}

void Panel::deleteSurface() {
    GDDeleteVram(takeLast(surfaces_));
}

void Panel::attachSurface(int16_t id) {
    GVram* const surface = takeLast(surfaces_);
    if (GDSetVram(handle_, id, surface) != 1 || id != G_MEMORY_SURFACE) {
        add(surfaces_, surface);
    }
}

void Panel::allocate(int32_t size) {
    if (blocks_.size() < kMostThings) {
        add(blocks_, GMMemoryAlloc(kSpace, 0, size));
    }
}

void Panel::reallocate(int32_t size) {
    void* const old = takeLast(blocks_);
    void* const fresh = GMMemoryRealloc(kSpace, 0, old, size);
    add(blocks_, fresh != nullptr ? fresh : old);
}

void Panel::free() {
    if (!blocks_.empty()) {
        GMMemoryFree(kSpace, 0, takeLast(blocks_));
    }
}

void Panel::createTypedBlock(const char16_t* name, int32_t size) {
    void* const block = GMGMemCreate(name, size);
    if (std::find(typedBlocks_.begin(), typedBlocks_.end(), block) == typedBlocks_.end()) {
        add(typedBlocks_, block);
    }
}

void Panel::deleteTypedBlock() {
    GMGMemDelete(takeLast(typedBlocks_));
}

void Panel::setTimer(uint32_t target, uint16_t id, uint32_t interval) {
    if (GESetTimer(target, id, interval) == 1) {
        timers_.emplace_back(target, id);
    }
}

} // namespace quarlo::test
