// Work on names: what a file is, renaming, removing, listing a folder.
#pragma once

#include "file/root.h"

#include <quarlo/file.h>

#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <vector>

namespace gpi {

/// What the system knows of a file. @throws IoError
struct stat statusOf(const Place& place);

/// G_FILE_READABLE and so on. A file that nobody may write is not writable for the superuser.
uint32_t attributesOf(const Place& place, const struct stat& status);

/// The entries of a folder, sorted by name. Links that lead out of the root, or nowhere, are left
/// out, and so are names that are no text.
///
/// @param path the folder as the program named it
std::vector<GDirectoryEntry> listFolder(const Root& root, const std::u16string& path);

/// @param flags as for GIORename() @throws IoError
void renameFile(const Place& from, const Place& to, uint32_t flags);

/// @param flags as for GIORemove() @throws IoError
void removeFile(const Place& place, uint32_t flags);

} // namespace gpi
