// The moves ahead and the tool's way along them.
#pragma once

#include "nc/sim/segment.h"

#include <cstddef>
#include <deque>
#include <optional>

namespace gpi::nc {

/// How the path is moved along at the moment.
struct Pace {
    double feed = 1.0;           ///< override of cuts, 1 for 100 percent
    double rapid = 1.0;          ///< override of rapids
    bool hold = false;           ///< comes to a stand on the path
    bool stopAtBlockEnd = false; ///< stands still after the block, or after the next one it can

    bool operator==(const Pace&) const = default;
};

/// A run of segments that is travelled without leaving it: the tool brakes for bends, corners and
/// the end of what is known.
class Path {
  public:
    /// Segments that are looked at to tell how fast to go.
    static constexpr size_t kLookAhead = 32;

    /// @param segment begins where the last one ends and leads somewhere
    void add(const Segment& segment);

    /// Moves on by a tick. @return whether it came to a stand at the end of a block
    bool advance(const Pace& pace);

    /// Forgets what is ahead; the tool stands where it is.
    void clear();

    /// Puts the tool elsewhere; there must be nothing ahead.
    void place(const Point3& position) { position_ = position; }

    bool empty() const { return segments_.empty(); }
    size_t size() const { return segments_.size(); }
    /// The segment that is travelled. The path must not be empty.
    const Segment& current() const { return segments_.front().segment; }
    const Point3& position() const { return position_; }
    double speed() const { return speed_; } ///< millimetres a second
    Point3 velocity() const;

  private:
    struct Ahead {
        Segment segment;
        double corner; ///< speed allowed at its begin
    };

    double leavingSpeed(const Pace& pace);
    double lookAhead(const Pace& pace) const;

    std::deque<Ahead> segments_;
    Point3 position_{};
    double way_ = 0.0; ///< done of the first segment
    double speed_ = 0.0;

    /// The last look ahead, which is good until segments come or go.
    struct Look {
        Pace pace;
        double leaving;
    };
    std::optional<Look> look_;
};

} // namespace gpi::nc
