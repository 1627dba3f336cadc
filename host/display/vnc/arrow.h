// The pointer as viewers draw it.
#pragma once

#include <rfb/rfb.h>

#include <memory>

namespace gpi {

struct FreeCursor {
    void operator()(rfbCursorPtr cursor) const { rfbFreeCursor(cursor); }
};
using VncCursor = std::unique_ptr<rfbCursor, FreeCursor>;

/// A white arrow with a black edge; null when memory is short.
VncCursor makeArrow();

} // namespace gpi
