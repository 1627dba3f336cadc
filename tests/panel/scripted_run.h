// The scripted runs that tests repeat.
#pragma once

#include "support/environment.h"

#include <ostream>
#include <string>
#include <vector>

namespace panel::test {

/// A line of runs.txt.
struct ScriptedRun {
    std::string folder; ///< of the pictures
    std::string script;
    std::string width;
    std::string height;
    std::string format;
    std::string language;
    std::string modules; ///< empty for none

    /// Of the platform.
    gpi::test::Environment::Values settings() const;
    /// Of kLanguages.
    size_t languageIndex() const;
    /// The lines of the script.
    std::string lines() const;
    /// As names of tests are spelled.
    std::string testName() const;
};

std::vector<ScriptedRun> scriptedRuns();

/// How GoogleTest calls it.
void PrintTo(const ScriptedRun& run, std::ostream* out);

} // namespace panel::test
