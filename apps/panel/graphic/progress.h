// How far along its path the tool has come.
#pragma once

#include "machine/snapshot.h"
#include "model/tool_path.h"

#include <cstddef>

namespace panel {

using toolpath::Move;
using toolpath::MoveKind;
using toolpath::ToolPath;

/// Where a move begins.
inline const toolpath::Point3& startOf(const ToolPath& path, size_t move) {
    return move == 0 ? path.start : path.moves[move - 1].end;
}

/// Counts the moves of a path that a machine has run through, by the line that runs and, among the
/// pieces of an arc, by where the tool is.
class Progress {
  public:
    /// Moves that are done.
    size_t done() const { return done_; }

    /// Follows the machine.
    /// @return false when it has begun anew, so that less is done than before
    bool follow(const ToolPath& path, const Snapshot& now);

    void reset() { done_ = 0; }

  private:
    size_t done_ = 0;
};

} // namespace panel
