#include "config/source.h"

#include "report.h"

#define SI_NO_CONVERSION // plain bytes, read as they are
#include <SimpleIni.h>

#include <cstdlib>

namespace gpi {
namespace {

std::optional<std::string> environment(const std::string& name) {
    const char* const value = std::getenv(name.c_str());
    return value != nullptr && *value != '\0' ? std::optional<std::string>(value) : std::nullopt;
}

} // namespace

std::filesystem::path userFolder(const std::string& name) {
    if (const auto folder = environment("XDG_CONFIG_HOME")) {
        return std::filesystem::path(*folder) / "quarlo" / name;
    }
    if (const auto home = environment("HOME")) {
        return std::filesystem::path(*home) / ".config/quarlo" / name;
    }
    return std::filesystem::path("quarlo") / name;
}

SettingSource::SettingSource(const std::filesystem::path& file) {
    CSimpleIniA ini(true);
    if (ini.LoadFile(file.c_str()) < 0) {
        report("cannot read the configuration file " + file.string());
        return;
    }
    CSimpleIniA::TNamesDepend names;
    ini.GetAllKeys("", names);
    for (const auto& name : names) {
        file_[name.pItem] = ini.GetValue("", name.pItem, "");
    }
}

SettingSource SettingSource::standard() {
    if (const auto named = environment("QUARLO_CONFIG")) {
        return SettingSource(*named);
    }
    const auto usual = userFolder("host.conf");
    std::error_code failure;
    return std::filesystem::exists(usual, failure) ? SettingSource(usual) : SettingSource();
}

std::optional<std::string> SettingSource::find(const std::string& name) const {
    if (auto value = environment(name)) {
        return value;
    }
    const auto entry = file_.find(name);
    return entry != file_.end() ? std::optional<std::string>(entry->second) : std::nullopt;
}

std::vector<std::string> SettingSource::namesInFile() const {
    std::vector<std::string> names;
    names.reserve(file_.size());
    for (const auto& [name, value] : file_) {
        names.push_back(name);
    }
    return names;
}

} // namespace gpi
