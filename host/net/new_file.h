// A local file that is there whole or not at all.
#pragma once

#include "file/root.h"

#include <string>
#include <string_view>

namespace gpi {

/// Written beside its place under a name of its own, which is gone again if it does not become the
/// file. All throw IoError.
class NewFile {
  public:
    explicit NewFile(Place place);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    void write(std::string_view bytes);

    struct End {
        bool replace;  ///< else there must be no such file
        bool readOnly; ///< nobody may write it
    };

    /// Has the file take its place once it is on the medium.
    void become(End end);

  private:
    Place place_;
    std::string name_;
    UniqueFd file_;
};

/// Throws G_IO_READ_ONLY where the file of a place may not be replaced; G_IO_EXISTS where it may
/// not be there at all.
void requireFree(const Place& place, bool replace);

} // namespace gpi
