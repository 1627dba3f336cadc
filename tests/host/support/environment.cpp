#include "support/environment.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace gpi::test {
namespace {

void set(const std::string& name, const std::optional<std::string>& value) {
    if (value) {
        setenv(name.c_str(), value->c_str(), 1);
    } else {
        unsetenv(name.c_str());
    }
}

} // namespace

Environment::Environment(const Values& values) {
    for (const auto& [name, value] : values) {
        const char* const old = std::getenv(name.c_str());
        before_[name] = old != nullptr ? std::optional<std::string>(old) : std::nullopt;
        set(name, value);
    }
}

Environment::~Environment() {
    for (const auto& [name, value] : before_) {
        set(name, value);
    }
}

TemporaryFolder::TemporaryFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "quarlo-test-XXXXXX";
    path_ = mkdtemp(pattern.data());
}

TemporaryFolder::~TemporaryFolder() {
    std::filesystem::remove_all(path_);
}

std::string TemporaryFolder::path(const std::string& name) const {
    return name.empty() ? path_ : path_ + '/' + name;
}

void TemporaryFolder::write(const std::string& name, const std::string& text) const {
    std::ofstream(path(name)) << text;
}

} // namespace gpi::test
