// A list of up to five areas that want redrawing, which merges what it has no room for.
#include "geometry/geometry.h"

#include <quarlo/dirty.h>

#include <limits>

using namespace quarlo;

namespace {

/// Up to 2^32, and negative for an inverted rectangle.
int64_t areaOf(const GRect& rect) {
    return int64_t{widthOf(rect)} * heightOf(rect);
}

/// What the union of two areas covers beyond both; below zero where they overlap more than that.
int64_t wasteOf(const GRect& a, const GRect& b) {
    return areaOf(unite(a, b)) - areaOf(b) - areaOf(a);
}

void setEntry(GDirtyRectList& list, int32_t entry, const GRect& rect, int32_t drawForce) {
    list.rects[entry] = rect;
    list.areas[entry] = static_cast<int32_t>(areaOf(rect));
    list.drawForce[entry] = drawForce;
}

/// Merges entry `from` into entry `into`; the last entry takes the place that becomes free.
void merge(GDirtyRectList& list, int32_t into, int32_t from, int32_t last) {
    const bool drawForce = list.drawForce[into] != 0 || list.drawForce[from] != 0;
    setEntry(list, into, unite(list.rects[into], list.rects[from]), drawForce);
    if (from != last) {
        setEntry(list, from, list.rects[last], list.drawForce[last]);
    }
}

struct Pair {
    int32_t first;
    int32_t second;
};

/// The first of the pairs with the least waste among all entries, the spare one included.
Pair cheapestPair(const GDirtyRectList& list) {
    Pair best = {};
    int64_t leastWaste = std::numeric_limits<int64_t>::max();
    for (int32_t i = 0; i < G_DIRTY_RECT_COUNT; ++i) {
        for (int32_t j = i + 1; j <= G_DIRTY_RECT_COUNT; ++j) {
            const int64_t waste = wasteOf(list.rects[i], list.rects[j]);
            if (waste < leastWaste) {
                leastWaste = waste;
                best = {i, j};
            }
        }
    }
    return best;
}

} // namespace

void GDRAddDirtyRect(GDirtyRectList* list, const GRect* rect, uint32_t drawForce) {
    setEntry(*list, list->count, *rect, static_cast<int32_t>(drawForce));
    if (list->count < G_DIRTY_RECT_COUNT) {
        ++list->count;
        return;
    }
    const Pair pair = cheapestPair(*list);
    merge(*list, pair.first, pair.second, G_DIRTY_RECT_COUNT);
}

void GDRRefreshDirtyRect(GDirtyRectList* list) {
    for (int32_t i = 0; i < list->count - 1; ++i) {
        for (int32_t j = i + 1; j < list->count;) {
            if (wasteOf(list->rects[i], list->rects[j]) > 0) {
                ++j;
                continue;
            }
            merge(*list, i, j, list->count - 1);
            --list->count;
        }
    }
}

void GDRClearDirtyRect(GDirtyRectList* list) {
    list->count = 0;
}

int32_t GDRGetDirtyRectNum(const GDirtyRectList* list) {
    return list->count;
}

GRect* GDRGetDirtyRect(GDirtyRectList* list) {
    return list->rects;
}

int32_t* GDRGetDrawForce(GDirtyRectList* list) {
    return list->drawForce;
}

void GDRDuplicateDirtyRect(const GDirtyRectList* source, GDirtyRectList* destination) {
    *destination = *source;
}
