#include "file/lock.h"

#include "file/error.h"

#include <sys/file.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>

namespace gpi {

void lockFile(int file, Sharing sharing, int32_t wait) {
    using namespace std::chrono;
    // The system has no wait for a lock that ends in time, so it is asked again and again.
    constexpr milliseconds kInterval(5);
    const int how = sharing == Sharing::OneWriter ? LOCK_EX : LOCK_SH;
    if (wait == -1) {
        while (flock(file, how) != 0) {
            if (errno != EINTR) {
                throwSystemError();
            }
        }
        return;
    }
    const auto end = steady_clock::now() + milliseconds(std::max(wait, 0));
    while (flock(file, how | LOCK_NB) != 0) {
        const auto left = end - steady_clock::now();
        if ((errno != EWOULDBLOCK && errno != EINTR) || left <= steady_clock::duration::zero()) {
            throwSystemError();
        }
        std::this_thread::sleep_for(std::min<steady_clock::duration>(left, kInterval));
    }
}

} // namespace gpi
