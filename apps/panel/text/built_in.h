// The English profile as it was when the panel was built.
#pragma once

#include <string_view>

namespace panel {

/// For a panel that finds no profiles, or one that lacks a text.
extern const std::u16string_view kBuiltInProfile;

} // namespace panel
