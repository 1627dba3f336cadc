// A part program as it is to be read.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace panel {

/// The text of a part program, by lines.
class ProgramFile {
  public:
    /// No program.
    ProgramFile() = default;

    /// Reads a file below the platform's file root; no lines where it cannot be read.
    explicit ProgramFile(const std::u16string& path);

    const std::u16string& path() const { return path_; }
    const std::string& bytes() const { return bytes_; }
    int32_t lines() const { return static_cast<int32_t>(starts_.size()); }

    /// A line, from 1, without its end; empty where there is none.
    std::u16string line(int32_t number) const;

  private:
    std::u16string path_;
    std::string bytes_;
    std::vector<size_t> starts_; ///< of lines
};

/// Whether a name is that of a part program: by its extension, and without a folder.
bool isProgramName(const std::u16string& name);

/// Writes a program below the platform's file root, all of it or nothing.
bool writeProgram(const std::u16string& name, const std::string& bytes);

/// Names of the files in the platform's file root that look like part programs, sorted.
std::vector<std::u16string> programNames();

} // namespace panel
