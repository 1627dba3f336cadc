// The control inside the platform.
#pragma once

#include "nc/alarms.h"
#include "nc/clock.h"
#include "nc/controller.h"
#include "nc/macros.h"
#include "nc/sim/axis_mover.h"
#include "nc/sim/offsets.h"
#include "nc/sim/program_run.h"

#include <array>
#include <mutex>

namespace gpi::nc {

/// Simulates a milling machine and its control in real time.
///
/// It has no thread: every call first makes up for the time since the last one, tick by tick, so
/// what it answers depends on the calls and their times alone.
class SimController : public Controller {
  public:
    explicit SimController(Clock clock = steadyMilliseconds);

    Extent extent() const override;
    int32_t setValue(const ValueAddress& address, double value) override;
    int32_t getValue(const ValueAddress& address, double& value) override;
    int32_t choose(std::shared_ptr<const Program> program) override;
    int32_t runBlock(const std::string& block) override;
    int32_t getText(int32_t string, int32_t number, std::string& text) override;
    int32_t setSystem(int32_t number, int32_t value) override;
    int32_t getSystem(int32_t number, int32_t& value) override;

  private:
    /// What the machine is at.
    enum class Task {
        None,
        Program,
        Block,
        Home,
        Jog,
    };

    // Time.
    void catchUp();
    bool busy() const;
    void tick();
    void runTick();
    void moveAxes();
    void turnSpindle();

    // Commands.
    int32_t command(int32_t command);
    int32_t start(bool oneBlock);
    int32_t hold();
    int32_t home();
    void stop();
    void reset();
    int32_t jog(size_t axis, double feed);
    int32_t jogStep(size_t axis, double distance);
    int32_t mayJog();
    int32_t setMode(int32_t mode);
    int32_t setPower(bool on);
    void halt();
    void endTask();

    // Answers.
    int32_t state() const;
    double position(size_t axis) const { return place_[axis]; }
    double velocity(size_t axis) const;
    double distanceToGo(size_t axis) const;
    double actualFeed() const;
    bool ready() const { return power_ && !alarms_.any(); }

    std::mutex mutex_;
    Clock clock_;
    int64_t now_;

    Macros macros_;
    Offsets offsets_;
    Alarms alarms_;
    ProgramRun run_;
    std::shared_ptr<const Program> program_;
    std::string block_; ///< the last that was given by hand
    RunOptions options_;
    Switches switches_;

    std::array<AxisMover, kAxes> axes_;
    std::array<double, kAxes> jogSpeeds_{}; ///< of jog steps, millimetres a second
    std::array<double, kAxes> jogFeeds_{};  ///< asked for, millimetres a minute
    Point3 place_{};
    uint32_t homed_ = 0;

    std::array<double, 3> overrides_{100.0, 100.0, 100.0}; ///< feed, rapid, spindle; percent
    double spindle_ = 0.0;                                 ///< actual, revolutions a minute
    Task task_ = Task::None;
    bool held_ = false;     ///< the program waits to be resumed
    bool holding_ = false;  ///< it is to
    bool oneBlock_ = false; ///< it is to after this block
    bool stopping_ = false; ///< it is to end
    bool power_ = false;
    bool emergency_ = false;
    int32_t mode_ = G_NC_MODE_MANUAL;
    int32_t lastCommand_ = G_NC_COMMAND_NONE;
    int64_t runTicks_ = 0;
    int64_t allTicks_ = 0;
};

} // namespace gpi::nc
