// A program that is spoken to line by line.
#pragma once

#include "unique_fd.h"

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace gpi::nc {

/// Starts a program with a socket as its standard input and output, and ends it with itself.
class LineChannel {
  public:
    /// Longer lines are no lines: the channel counts as broken.
    static constexpr size_t kLongestLine = 4096;

    enum class Event {
        Line,     ///< a line came
        Nothing,  ///< none within the time
        Broken,   ///< the program ended, or speaks nonsense
        Cancelled ///< the other file became readable
    };

    /// @param program without arguments, by its path. One that cannot be started counts as broken.
    explicit LineChannel(const std::filesystem::path& program);
    ~LineChannel();
    LineChannel(const LineChannel&) = delete;
    LineChannel& operator=(const LineChannel&) = delete;

    /// Waits for a line. One thread may do so.
    /// @param line receives it, without its end; good until the next call
    /// @param cancel a file that ends the waiting
    Event receive(std::string_view& line, std::chrono::milliseconds wait, int cancel);

    /// Sends a line, from any thread, without waiting. @return false when it cannot be taken now
    bool send(std::string_view line);

  private:
    std::optional<std::string_view> takeLine();
    void end();

    UniqueFd socket_;
    pid_t process_ = -1;
    std::string received_;
    size_t taken_ = 0; ///< of what was received
};

} // namespace gpi::nc
