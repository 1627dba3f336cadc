// The part of the file system that a program may see.
#pragma once

#include "unique_fd.h"

#include <filesystem>
#include <string>

namespace gpi {

/// A name in a folder that is held open: whatever happens to the folders above it, it stays there.
struct Place {
    UniqueFd folder;
    std::string name; ///< "." for the root itself
};

/// A folder whose outside does not exist for those who work below it.
class Root {
  public:
    /// What is meant by a path that ends in a symbolic link.
    enum class LastLink {
        Followed, ///< the file that it leads to
        Kept      ///< the link
    };

    /// @param folder need not exist yet; a relative path counts from the current folder now
    explicit Root(const std::filesystem::path& folder)
        : folder_(std::filesystem::absolute(folder)) {}

    /// Where a program's path leads. A drive letter and slashes at its begin stand for the root;
    /// slash and back slash both separate folders.
    ///
    /// @throws IoError for null, a path that is too long, no text, or leads out
    /// @throws std::system_error for what the system refuses, such as a name of more than 255 bytes
    Place locate(const char16_t* path, LastLink last = LastLink::Followed) const;

    /// The same as a path of the system, for calls that want one.
    std::filesystem::path resolve(const char16_t* path, LastLink last = LastLink::Followed) const;

  private:
    std::filesystem::path folder_;
};

} // namespace gpi
