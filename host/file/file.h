// An open file.
#pragma once

#include "file/root.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <mutex>

namespace gpi {

/// A buffered file with the calls that a program makes. One call at a time; others wait.
class File {
  public:
    /// @param mode G_OPEN_READ and so on, judged already
    /// @param folder where the file was made, to be put on the medium with it; none for an old one
    /// @throws IoError
    File(UniqueFd file, uint32_t mode, UniqueFd folder = UniqueFd());

    // The results are those of file.h.
    int32_t read(void* buffer, int32_t size, int32_t* done);
    int32_t write(const void* buffer, int32_t size, int32_t* done);
    int32_t seek(int32_t offset, int32_t origin);
    int32_t readLine(char* line, int32_t size);
    int32_t readByte();

    enum class Closing {
        Plain,
        Lasting ///< when it is on the medium
    };

    /// Closes the file; nothing else may follow. @return 1, or why something written is lost
    int32_t close(Closing closing);

  private:
    struct Close {
        // Closing that matters goes through close(), which tells what was lost.
        void operator()(std::FILE* stream) const { static_cast<void>(std::fclose(stream)); }
    };

    enum class Direction { None, Reading, Writing };

    /// Readies the stream for reading or writing, which do not follow each other by themselves.
    void turn(Direction next);
    int32_t failure() const;

    std::mutex mutex_;
    std::unique_ptr<std::FILE, Close> stream_;
    uint32_t mode_;
    UniqueFd folder_;
    Direction direction_ = Direction::None;
};

/// Opens a file of a place. Folders and devices are not files.
///
/// @param mode G_OPEN_READ and so on; the file is not emptied yet
/// @throws IoError also for a mode that makes no sense
UniqueFd openFile(const Place& place, uint32_t mode);

/// The place's folder where a mode may make a file in it, else none.
UniqueFd folderToKeep(Place place, uint32_t mode);

} // namespace gpi
