#include "profile/profiles.h"

#include "file/error.h"

#include <quarlo/profile.h>

#include <strings.h>

#include <algorithm>

namespace gpi {
namespace {

void addNames(std::vector<std::string>& names, const std::vector<std::string>& more) {
    for (const std::string& name : more) {
        const bool known = std::any_of(names.begin(), names.end(), [&name](const auto& other) {
            return strcasecmp(other.c_str(), name.c_str()) == 0;
        });
        if (!known) {
            names.push_back(name);
        }
    }
}

} // namespace

Profiles::Documents Profiles::documents(uint32_t layer, const char16_t* file) {
    switch (layer) {
    case G_PROFILE_MAKER:
        return {maker_.read(file)};
    case G_PROFILE_USER:
        return {user_.read(file)};
    case G_PROFILE_ANY:
        return {maker_.read(file), user_.read(file)};
    default:
        throw IoError(G_IO_ARGUMENT);
    }
}

std::optional<std::string> Profiles::value(const std::string& section, const std::string& key,
                                           uint32_t layer, const char16_t* file) {
    const Documents documents = this->documents(layer, file);
    for (auto document = documents.rbegin(); document != documents.rend(); ++document) {
        if (auto value = (*document)->value(section, key)) {
            return value;
        }
    }
    return std::nullopt;
}

std::vector<std::string> Profiles::sections(uint32_t layer, const char16_t* file) {
    std::vector<std::string> names;
    for (const auto& document : documents(layer, file)) {
        addNames(names, document->sections());
    }
    return names;
}

std::vector<std::string> Profiles::keys(const std::string& section, uint32_t layer,
                                        const char16_t* file) {
    std::vector<std::string> names;
    for (const auto& document : documents(layer, file)) {
        addNames(names, document->keys(section));
    }
    return names;
}

void Profiles::change(uint32_t layer, const char16_t* file,
                      const std::function<void(ProfileDocument&)>& action) {
    if (layer == G_PROFILE_MAKER) {
        throw IoError(G_IO_READ_ONLY);
    }
    if (layer != G_PROFILE_USER && layer != G_PROFILE_ANY) {
        throw IoError(G_IO_ARGUMENT);
    }
    user_.change(file, action);
}

} // namespace gpi
