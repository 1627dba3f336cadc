// Turns blocks into orders for the machine.
#pragma once

#include "gcode/block.h"
#include "gcode/drilling_cycle.h"
#include "gcode/modal_state.h"
#include "nc/macros.h"
#include "nc/sim/offsets.h"
#include "nc/sim/order.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace gpi::nc {

/// Reads ahead of the machine: its position is where the last block it read will end.
class Interpreter {
  public:
    Interpreter(Macros& macros, Offsets& offsets) : macros_(macros), offsets_(offsets) {}

    /// Reads a line and adds what it asks for; nothing for one without a block. A block that cannot
    /// be run ends with a Fault, and nothing may be read before the next reset().
    ///
    /// @param number of the line, from 1; 0 for a block given by hand
    /// @param skipDeletable whether blocks that begin with a slash are passed over
    void read(std::string_view line, int32_t number, bool skipDeletable, Orders& orders);

    /// Goes on from a place of the machine.
    void moveTo(const Point3& machine) { position_ = machine; }

    /// The modes that a control starts with.
    void reset();

    /// Where program zero stands, from the reference.
    Point3 zero() const { return offsets_.zero(workOffset_, lengthOffset_); }

    double feed() const { return feed_; } ///< millimetres a minute
    /// The G code in force of a group, such as 17. @param group GPI_NC_MODAL_MOTION and so on
    double modal(int32_t group) const;

  private:
    /// Thrown where a block cannot be run; its words become the alarm.
    struct Refusal {
        std::string text;
        int32_t alarm = GPI_NC_ALARM_PROGRAM;
    };

    void run(const gcode::Block& block);
    void applyCodes(const gcode::Block& block);
    bool applyMode(gcode::Code code);
    void applyWords(const gcode::Block& block);
    void applyFunctions(const gcode::Block& block);
    void turnSpindle();
    void setWorkOffset(const gcode::Block& block);
    void move(const gcode::Block& block);
    void moveInMachine(const gcode::Block& block);
    void moveToReference(const gcode::Block& block);
    void moveAlongArc(const gcode::Block& block);
    void drill(const gcode::Block& block);
    void addLine(const Point3& machine, bool rapid);
    void addSegment(Segment segment, bool rapid);
    void stopAfter(const gcode::Block& block);
    template <typename What>
    void add(What what) {
        orders_->push_back({std::move(what), line_});
    }
    Point3 programPosition() const;
    Point3 toMachine(const Point3& program) const;

    Macros& macros_;
    Offsets& offsets_;
    Orders* orders_ = nullptr; ///< of the block that is read
    int32_t line_ = 0;

    // What stays in force from block to block.
    gcode::ModalState state_;
    gcode::DrillingCycle cycle_;
    Point3 position_{}; ///< from the reference
    double feed_ = 0.0;
    double spindleSpeed_ = 0.0;
    int spindleTurn_ = 0; ///< 1, 0 or -1
    int32_t coolant_ = 0;
    size_t workOffset_ = 1;
    size_t lengthOffset_ = 0; ///< tool whose length is in force
    bool exactStop_ = false;

    gcode::Code single_ = 0; ///< the code that holds for this block only
};

} // namespace gpi::nc
