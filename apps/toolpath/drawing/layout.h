// Where things stand on a display.
#pragma once

#include <quarlo/quarlo.h>

namespace toolpath {

/// The plan takes two fifths of the width and the isometric view, which is wider for the same part,
/// three.
struct Layout {
    explicit Layout(const GVram& surface);

    GRect display;
    GRect planFrame;
    GRect plan; ///< inside the frame
    GRect isometricFrame;
    GRect isometric;
    GRect bar; ///< of the progress, in the margin below the views
};

} // namespace toolpath
