// One move along a path.
#pragma once

#include "gcode/arc.h"
#include "nc/sim/machine.h"

#include <optional>

namespace gpi::nc {

/// A straight line or an arc, by the way along it.
class Segment {
  public:
    static Segment straight(const Point3& from, const Point3& to);
    static Segment round(const gcode::Arc& arc);

    double length() const { return length_; }
    const Point3& end() const { return end_; }
    Point3 at(double way) const;
    /// A vector of length 1 along the path.
    Point3 direction(double way) const;

    /// Whether it stays within the machine's reach. @return the first axis that does not
    std::optional<Axis> leavesReach() const;

    /// The greatest speed that no axis is too slow for and no bend too narrow.
    double fastest(double axisSpeed) const;

    // How it is moved along.
    double speed = 0.0;     ///< at 100 percent, millimetres a second
    double mostSpeed = 0.0; ///< at any percentage
    bool rapid = false;     ///< which override counts
    bool exactStop = false; ///< stands still at its end
    bool endsBlock = false; ///< the last of its block
    int32_t line = 0;       ///< of the program

  private:
    Segment() = default;

    Point3 start_{};
    Point3 end_{};
    std::optional<gcode::Arc> arc_;
    double length_ = 0.0;
};

/// The greatest speed at which the path may go from one segment into the next.
double cornerSpeed(const Segment& before, const Segment& after);

} // namespace gpi::nc
