// The conversions between virtual, physical and surface coordinates that programs call.
#include "geometry/view.h"

#include <quarlo/line.h>
#include <quarlo/point.h>
#include <quarlo/poly.h>
#include <quarlo/rect.h>

namespace quarlo {

GRect physicalRect;

} // namespace quarlo

using namespace quarlo;

void GRPhysicalToVirtualRect(const GDrawHandle* handle, GRect* rect) {
    physicalToVirtual (*handle)(*rect);
}

void GRVirtualToPhysicalRect(const GDrawHandle* handle, GRect* rect) {
    virtualToPhysical (*handle)(*rect);
}

void GRMapToScreenRect(const GDrawHandle* handle, GRect* rect) {
    mapToScreen(*handle, *rect);
}

void GPTPhysicalToVirtualPoint(const GDrawHandle* handle, GPoint* point) {
    physicalToVirtual (*handle)(*point);
}

void GPTVirtualToPhysicalPoint(const GDrawHandle* handle, GPoint* point) {
    virtualToPhysical (*handle)(*point);
}

void GLPhysicalToVirtualLine(const GDrawHandle* handle, GLine* line) {
    physicalToVirtual (*handle)(*line);
}

void GLVirtualToPhysicalLine(const GDrawHandle* handle, GLine* line) {
    virtualToPhysical (*handle)(*line);
}

void GPPhysicalToVirtualPoly(const GDrawHandle* handle, GPoly* poly) {
    physicalToVirtual (*handle)(*poly);
}

void GPVirtualToPhysicalPoly(const GDrawHandle* handle, GPoly* poly) {
    virtualToPhysical (*handle)(*poly);
}
