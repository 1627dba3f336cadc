// The clip save stack: one for all handles. Rectangles are saved in application coordinates and
// come back through the mapping of the handle that pops them.
#include <quarlo/clip.h>

namespace {

GRect saved[G_CLIP_STACK_DEPTH];
uint16_t depth = 0;

} // namespace

int32_t GDPushClipRect(GDrawHandle* handle, const GRect* rect) {
    if (depth >= G_CLIP_STACK_DEPTH) {
        return depth;
    }
    GDGetClipRect(handle, &saved[depth]);
    ++depth;
    return GDSetClipRect(handle, rect);
}

int32_t GDPopClipRect(GDrawHandle* handle) {
    if (depth == 0) {
        return 0;
    }
    --depth;
    return GDSetClipRect(handle, &saved[depth]);
}

void GDInitBackupClipBuf(void) {
    depth = 0;
}
