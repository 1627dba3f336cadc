// A root and the files that are open below it.
#pragma once

#include "file/error.h"
#include "file/file.h"
#include "handle_table.h"

namespace gpi {

/// @tparam Handle GFile or GDataFile
template <typename Handle>
struct FileStore {
    explicit FileStore(const std::filesystem::path& folder) : root(folder) {}

    /// Puts an open file under a handle. @throws IoError when there are too many
    Handle* add(std::shared_ptr<File> file) {
        Handle* const handle = files.add(std::move(file));
        if (handle == nullptr) {
            throw IoError(G_IO_TOO_MANY);
        }
        return handle;
    }

    /// Has an open file do something, or says that there is none.
    template <typename Action>
    int32_t with(Handle* handle, Action&& action) {
        const auto file = files.find(handle);
        return file != nullptr ? action(*file) : static_cast<int32_t>(G_IO_HANDLE);
    }

    int32_t close(Handle* handle, File::Closing closing) {
        const auto file = files.remove(handle);
        return file != nullptr ? file->close(closing) : static_cast<int32_t>(G_IO_HANDLE);
    }

    Root root;
    HandleTable<Handle, File> files;
};

} // namespace gpi
