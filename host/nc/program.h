// A part program, read into memory.
#pragma once

#include "unique_fd.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gpi::nc {

class Program {
  public:
    static constexpr size_t kLargestFile = size_t{64} << 20;

    /// @param name what a panel calls it
    /// @param path where it is, for a control that reads it on its own
    Program(std::string name, std::filesystem::path path, std::string text);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    const std::string& name() const { return name_; }
    const std::filesystem::path& path() const { return path_; }

    int32_t lineCount() const { return static_cast<int32_t>(lines_.size()); }
    /// @param number from 1 to lineCount()
    std::string_view line(int32_t number) const { return lines_[static_cast<size_t>(number) - 1]; }

  private:
    std::string name_;
    std::filesystem::path path_;
    std::string text_;
    std::vector<std::string_view> lines_;
};

/// A file's bytes from where it stands. @return nothing where it cannot be read, or is larger than
/// a program may be
std::optional<std::string> readProgramText(const UniqueFd& file);

} // namespace gpi::nc
