// The faces that the platform chooses itself.
#pragma once

#include "config/settings.h"
#include "font/face_file.h"

namespace gpi {

/// The name by which programs ask for the panel face.
inline constexpr char16_t kPanelFace[] = u"TORVANDELL CNC Gothic";

/// The panel face, and the two that other faces borrow ideographs from. A path is empty where
/// nothing is installed.
struct BuiltInFaces {
    FaceFile panel;
    FaceFile japanese;
    FaceFile chinese;
};

/// As configured, else the first of those known that is installed.
BuiltInFaces chooseBuiltInFaces(const Settings& settings);

} // namespace gpi
