// The whole picture: two views of a path side by side.
#pragma once

#include "model/tool_path.h"

#include <quarlo/quarlo.h>

namespace toolpath {

/// Draws a path on the handle's display and shows it. A long path appears in slices, with a bar
/// that tells how far it has come.
void drawPicture(GDrawHandle* handle, const ToolPath& path);

} // namespace toolpath
