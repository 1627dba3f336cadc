// A folder of profiles.
#pragma once

#include "file/root.h"
#include "profile/document.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>

namespace gpi {

/// Reads profiles, each anew only after it has changed, and changes them so that whoever reads, now
/// or after a power cut, finds the old profile or the new one whole. May be used from any thread,
/// and by several programs at a time.
class ProfileFolder {
  public:
    /// @param codePage of files that are neither UTF-8 nor UTF-16; static text
    ProfileFolder(std::filesystem::path folder, const char* codePage);

    /// @param file name without a folder
    /// @return an empty profile where there is no such file
    /// @throws IoError
    std::shared_ptr<const ProfileDocument> read(const char16_t* file);

    /// Changes a profile, which is made if there is none, together with its folder.
    ///
    /// @throws IoError
    void change(const char16_t* file, const std::function<void(ProfileDocument&)>& action);

  private:
    /// What tells one state of a file from the next.
    struct Stamp {
        uint64_t inode = 0;
        int64_t seconds = 0;
        int64_t nanoseconds = 0;
        int64_t size = -1;

        bool operator==(const Stamp&) const = default;
    };

    struct Known {
        Stamp stamp;
        std::shared_ptr<const ProfileDocument> document;
    };

    Place locate(const char16_t* file) const;
    static Stamp stampOf(int file);

    std::filesystem::path folder_;
    const char* codePage_;
    Root root_;
    std::mutex mutex_;
    std::map<std::string, Known> known_;
};

} // namespace gpi
