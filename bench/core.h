// The one core that everything is measured on, and the settings that hold for a whole process.
#pragma once

namespace bench {

/// Reads Google Benchmark's own arguments, keeps the process on the last core that it may use,
/// which interrupts use least, and notes in the results what they were measured on. False for an
/// argument that means nothing.
bool startMeasuring(int argc, char** argv);

/// Keeps Qt from AVX2 unless QT_NO_CPU_FEATURE is set: its fills would leave the registers in a
/// state that slows other contenders. Qt looks while it is loaded, so the process starts anew.
void keepQtFromAvx2(char** argv);

} // namespace bench
