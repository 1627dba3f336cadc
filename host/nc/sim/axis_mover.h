// An axis that is moved by itself: jogged, or taken to its reference.
#pragma once

namespace gpi::nc {

class AxisMover {
  public:
    /// Makes for a goal at a speed, millimetres a second. An axis that moves the other way brakes
    /// first.
    void go(double goal, double speed) {
        goal_ = goal;
        most_ = speed;
        moving_ = true;
    }

    /// Brakes, and stays where that ends.
    void stop() { most_ = 0.0; }

    /// Stands still at once.
    void halt();

    /// Moves on by a tick.
    void advance(double& position);

    bool moving() const { return moving_; }
    double velocity() const { return velocity_; }
    double goal() const { return goal_; }

  private:
    double goal_ = 0.0;
    double most_ = 0.0;
    double velocity_ = 0.0;
    bool moving_ = false;
};

} // namespace gpi::nc
