// Programs that were started from here.
#pragma once

#include "file/root.h"

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace gpi {

/// Starts the programs of one folder, without a shell, and knows those that run.
class ProgramStore {
  public:
    /// @param files where programs start in, below
    ProgramStore(const std::string& folder, const std::string& files)
        : programs_(folder), files_(files) {}

    /// How a program is started.
    struct Start {
        const char16_t* program;
        std::string arguments;
        const char16_t* directory; ///< null for the file root
        bool single;
    };

    /// Starts a program. @return its number @throws IoError
    pid_t start(const Start& start);

    /// Starts a program and waits until it has ended.
    ///
    /// @return its exit status, or 256 + the signal that ended it @throws IoError
    int32_t run(const Start& start);

    /// Asks a program that was started here to end; false when it does not run.
    bool end(pid_t number);

  private:
    struct Running {
        std::string program;
        bool awaited; ///< by a thread that asks for its status
    };

    /// Forgets programs that have ended.
    void reap();

    pid_t launch(const Start& start, bool awaited);

    Root programs_;
    Root files_;
    std::mutex mutex_;
    std::map<pid_t, Running> running_;
};

} // namespace gpi
