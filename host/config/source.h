// Where settings are written down: the environment and one configuration file.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace gpi {

/// What the user keeps for this platform under a name: quarlo/NAME below XDG_CONFIG_HOME or
/// ~/.config; in the current folder where neither is known.
std::filesystem::path userFolder(const std::string& name);

/// Settings by name, as text. An environment variable wins over the file's entry of its name; one
/// that is empty counts as absent.
class SettingSource {
  public:
    /// The environment and no file.
    SettingSource() = default;

    /// The environment and a file of lines `NAME = value`; lines that start with # or ; are
    /// comments. A file that cannot be read is reported and counts as empty.
    explicit SettingSource(const std::filesystem::path& file);

    /// The environment and the file that it names: QUARLO_CONFIG, else quarlo/host.conf below
    /// XDG_CONFIG_HOME or ~/.config, which need not exist.
    static SettingSource standard();

    std::optional<std::string> find(const std::string& name) const;

    /// The names that the file sets.
    std::vector<std::string> namesInFile() const;

  private:
    std::map<std::string, std::string> file_;
};

} // namespace gpi
