// Signals and the platform's own threads.
#pragma once

#include <csignal>
#include <pthread.h>

namespace gpi {

/// Keeps the calling thread out of the program's signals: handlers run in the program's own
/// threads, and a broken connection is an error and no signal.
inline void blockSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

} // namespace gpi
