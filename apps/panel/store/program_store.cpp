#include "store/program_store.h"

#include "events.h"
#include "machine/program_file.h"
#include "text/format.h"

#include <sstream>

namespace panel {

ProgramStore::ProgramStore(bool atOnce, const std::u16string& webServer) : worker_(atOnce) {
    remotes_[static_cast<size_t>(Store::DataServer)] = makeDataServer();
    if (!webServer.empty()) {
        remotes_[static_cast<size_t>(Store::WebServer)] = makeWebServer(webServer);
    }
}

ProgramStore::~ProgramStore() {
    stop_ = true;
}

void ProgramStore::list() {
    for (const Store store : {Store::DataServer, Store::WebServer}) {
        worker_.give([this, store] {
            std::vector<StoredProgram> programs = readList(store);
            {
                const std::lock_guard lock(mutex_);
                listed_[static_cast<size_t>(store)] = std::move(programs);
            }
            postEvent(EventType::ProgramsListed, 0, 0);
        });
    }
}

std::vector<StoredProgram> ProgramStore::listed() const {
    const std::lock_guard lock(mutex_);
    std::vector<StoredProgram> all;
    for (const auto& programs : listed_) {
        all.insert(all.end(), programs.begin(), programs.end());
    }
    return all;
}

/// Names that are no plain names of programs are left out: they become names of files here.
std::vector<StoredProgram> ProgramStore::readList(Store store) const {
    std::vector<StoredProgram> programs;
    if (remote(store) == nullptr) {
        return programs;
    }
    std::istringstream lines(remote(store)->read(u"programs.txt", stop_).value_or(std::string()));
    for (std::string line; std::getline(lines, line);) {
        const std::u16string name = decoded(line.substr(0, line.find('\r')));
        if (isProgramName(name)) {
            programs.push_back({store, name});
        }
    }
    return programs;
}

void ProgramStore::fetch(const StoredProgram& program) {
    worker_.give(
        [this, program] { postEvent(EventType::ProgramFetched, copy(program) ? 1 : 0, 0); });
}

bool ProgramStore::copy(const StoredProgram& program) const {
    const auto bytes = remote(program.store)->read(program.name, stop_);
    return bytes && writeProgram(copyName(program.name), *bytes);
}

} // namespace panel
