#include "scripted_run.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace panel::test {

gpi::test::Environment::Values ScriptedRun::settings() const {
    return {{"QUARLO_WIDTH", width},
            {"QUARLO_HEIGHT", height},
            {"QUARLO_FORMAT", format},
            {"QUARLO_MODULES", modules.empty() ? "none" : PANEL_MODULES}};
}

size_t ScriptedRun::languageIndex() const {
    return language == "english" ? 0 : language == "japanese" ? 1 : 2;
}

std::string ScriptedRun::lines() const {
    std::ifstream file(PANEL_TESTS "/scripts/" + script + ".txt");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string ScriptedRun::testName() const {
    std::string name = folder;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

void PrintTo(const ScriptedRun& run, std::ostream* out) {
    *out << run.folder;
}

std::vector<ScriptedRun> scriptedRuns() {
    std::ifstream lines(PANEL_TESTS "/runs.txt");
    std::vector<ScriptedRun> all;
    for (std::string line; std::getline(lines, line);) {
        ScriptedRun run;
        std::istringstream words(line);
        words >> run.folder >> run.script >> run.width >> run.height >> run.format >> run.language;
        if (words && run.folder[0] != '#') {
            words >> run.modules;
            all.push_back(run);
        }
    }
    return all;
}

} // namespace panel::test
