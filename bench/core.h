// The one core that everything is measured on, and the settings that hold for a whole process.
#pragma once

#include <string>

namespace bench {

/// Keeps the process on the last core that it may use, which interrupts use least. Returns it.
int pinToOneCore();

/// As the kernel names it; empty where it does not.
std::string processorName();

/// Keeps Qt from AVX2 unless QT_NO_CPU_FEATURE is set: its fills would leave the registers in a
/// state that slows other contenders. Qt looks while it is loaded, so the process starts anew.
void keepQtFromAvx2(char** argv);

} // namespace bench
