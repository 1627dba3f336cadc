// Follows a part program and records the path it makes the tool take.
#pragma once

#include "gcode/drilling_cycle.h"
#include "gcode/modal_state.h"
#include "model/program_reader.h"
#include "model/remarks.h"
#include "model/tool_path.h"

#include <string_view>

namespace toolpath {

/// The path of a program, from machine zero, in millimetres, positioning at rapid until the
/// program says otherwise. It ends at M2, M30 or M99. Words that it does not draw are remarked on,
/// each once, and passed over.
ToolPath tracePath(std::string_view program, Remarks& remarks);

/// The state between two blocks.
class PathTracer {
  public:
    PathTracer(ToolPath& path, Remarks& remarks) : path_(path), remarks_(remarks) {}

    /// @return false where the program ends
    bool run(const Block& block);

  private:
    bool applyCodes(const Block& block);
    void nameOtherWords(const Block& block);
    void move(const Block& block);
    void moveAlongArc(const Block& block, const Point3& target);
    void drill(const Block& block);
    void add(const Block& block, MoveKind kind, const Point3& end);

    ToolPath& path_;
    Remarks& remarks_;
    gcode::ModalState state_;
    gcode::DrillingCycle cycle_;
};

} // namespace toolpath
