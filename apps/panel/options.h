// What the command line says.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace panel {

struct Options {
    std::optional<std::string> script;
    std::string shots = ".";        ///< folder of a script's pictures
    std::optional<size_t> language; ///< of kLanguages; none for the one that was used last
    std::string program;            ///< chosen at the start, empty for none
    uint32_t rate = 20;             ///< looks at a machine that moves, a second
    bool measure = false;
};

inline constexpr const char* kUsage =
    R"(usage: panel [--language english|japanese|chinese] [--rate N]
             [--script FILE [--shots FOLDER]] [--measure] [PROGRAM]

The operator panel of a milling machine. PROGRAM is a part program below
QUARLO_FILES. --rate is how often a second the panel looks at a machine that moves,
5 to 100 times, 20 if it is not said. --script drives the panel by the commands of a
file, with a clock of its own, and puts its pictures into FOLDER. --measure tells what
starting, waiting and drawing cost.
)";

/// Nothing where the command line makes no sense.
std::optional<Options> parseOptions(int argc, char** argv);

} // namespace panel
