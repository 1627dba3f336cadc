// What the panel is told by its profile, panel.ini, and keeps there.
#pragma once

#include <cstddef>
#include <string>

namespace panel {

/// The language that the operator chose last, of kLanguages.
size_t keptLanguage();
void keepLanguage(size_t language);

/// URL of the server whose programs the panel offers; empty for none.
std::u16string programServer();

} // namespace panel
