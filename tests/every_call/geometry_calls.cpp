#include "every_call/calls.h"

namespace quarlo::test {

ProgramCalls geometryCalls() {
    return {
        with("GRSetRect", GRSetRect),
        with("GRGetRect", GRGetRect),
        with("GRDuplicateRect", GRDuplicateRect),
        with("GREqualRect", GREqualRect),
        with("GRCheckRect", GRCheckRect),
        with("GRInceptRect", GRInceptRect),
        with("GRUnionRect", GRUnionRect),
        with("GRPointInRect", GRPointInRect),
        with("GROffsetRect", GROffsetRect),
        with("GRResizeRect", GRResizeRect),
        with("GRRestRect", GRRestRect),
        with("GRShiftRect", GRShiftRect, {2, 3}),
        with("GRMapRect", GRMapRect),
        with("GRPhysicalToVirtualRect", GRPhysicalToVirtualRect),
        with("GRVirtualToPhysicalRect", GRVirtualToPhysicalRect),
        with("GRMapToScreenRect", GRMapToScreenRect),
        with("GPTSetPoint", GPTSetPoint),
        with("GPTGetPoint", GPTGetPoint),
        with("GPTDuplicatePoint", GPTDuplicatePoint),
        with("GPTOffsetPoint", GPTOffsetPoint),
        with("GPTMapPoint", GPTMapPoint),
        with("GPTPhysicalToVirtualPoint", GPTPhysicalToVirtualPoint),
        with("GPTVirtualToPhysicalPoint", GPTVirtualToPhysicalPoint),
        with("GLSetLine", GLSetLine),
        with("GLGetLine", GLGetLine),
        with("GLDuplicateLine", GLDuplicateLine),
        with("GLOffsetLine", GLOffsetLine),
        with("GLMapLine", GLMapLine),
        with("GLPhysicalToVirtualLine", GLPhysicalToVirtualLine),
        with("GLVirtualToPhysicalLine", GLVirtualToPhysicalLine),
        with("GPSetPoly", GPSetPoly),
        with("GPGetPoly", GPGetPoly),
        with("GPOffsetPoly", GPOffsetPoly),
        with("GPMapPoly", GPMapPoly),
        with("GPPhysicalToVirtualPoly", GPPhysicalToVirtualPoly),
        with("GPVirtualToPhysicalPoly", GPVirtualToPhysicalPoly),
        with("GDRAddDirtyRect", GDRAddDirtyRect),
        with("GDRRefreshDirtyRect", GDRRefreshDirtyRect),
        with("GDRClearDirtyRect", GDRClearDirtyRect),
        with("GDRGetDirtyRectNum", GDRGetDirtyRectNum),
        with("GDRGetDirtyRect", GDRGetDirtyRect),
        with("GDRGetDrawForce", GDRGetDrawForce),
        with("GDRDuplicateDirtyRect", GDRDuplicateDirtyRect),
    };
}

} // namespace quarlo::test
