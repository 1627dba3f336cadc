// The two layers of profiles.
#pragma once

#include "profile/profile_folder.h"
#include "text/code_page.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace gpi {

/// What the machine's maker shipped, and what was changed since. Layers are those of profile.h; all
/// calls throw IoError, also for a layer that there is not.
class Profiles {
  public:
    /// @param codePage of files that are neither UTF-8 nor UTF-16
    Profiles(const std::string& maker, const std::string& user, const CodePage& codePage)
        : maker_(maker, codePage.name), user_(user, codePage.name) {}

    std::optional<std::string> value(const std::string& section, const std::string& key,
                                     uint32_t layer, const char16_t* file);

    /// Names of the sections, or of a section's keys: the maker's, then what the user added.
    std::vector<std::string> sections(uint32_t layer, const char16_t* file);
    std::vector<std::string> keys(const std::string& section, uint32_t layer, const char16_t* file);

    /// Changes the user's profile.
    void change(uint32_t layer, const char16_t* file,
                const std::function<void(ProfileDocument&)>& action);

  private:
    using Documents = std::vector<std::shared_ptr<const ProfileDocument>>;

    /// The documents of a layer, the maker's first.
    Documents documents(uint32_t layer, const char16_t* file);

    ProfileFolder maker_;
    ProfileFolder user_;
};

} // namespace gpi
