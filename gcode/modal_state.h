// The modes that stay set from block to block.
#pragma once

#include "gcode/block.h"
#include "gcode/point.h"

#include <cstdint>

namespace gcode {

enum class Motion : uint8_t {
    Rapid,
    Line,
    ClockwiseArc,
    CounterclockwiseArc,
    Cycle,
    NotDrawn, ///< a motion that is known to be one but not drawn, until the next that is
};

/// The axes of a working plane. Arcs go counterclockwise from `first` to `second`; cycles drill
/// along `normal`.
struct Plane {
    Axis first;
    Axis second;
    Axis normal;
};

inline constexpr Plane kPlaneXY{kX, kY, kZ};
inline constexpr Plane kPlaneZX{kZ, kX, kY};
inline constexpr Plane kPlaneYZ{kY, kZ, kX};

/// What a G code that is not drawn means for the axis words beside it.
enum class CodeEffect : uint8_t {
    Drawn,          ///< the code is understood
    LeavesMotion,   ///< it only sets a mode: the axis words move the tool all the same
    TakesAxisWords, ///< the axis words are its own arguments and move nothing that is drawn
};

struct ModalState {
    Motion motion = Motion::Rapid;
    Code cycle = 0; ///< the cycle's G code while motion is Motion::Cycle
    Plane plane = kPlaneXY;
    double unit = 1.0; ///< millimetres in a program unit
    bool incremental = false;
    bool retractToR = false; ///< G99: cycles end at the R level instead of the initial one

    CodeEffect apply(Code gCode);

    /// Where an axis word leads, in millimetres, from where the axis is.
    double coordinate(double from, double word) const {
        return incremental ? from + word * unit : word * unit;
    }

  private:
    bool setMotion(Code gCode);
    bool setMode(Code gCode);
};

} // namespace gcode
