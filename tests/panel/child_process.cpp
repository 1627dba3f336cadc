#include "child_process.h"

#include <gtest/gtest.h>

#include <malloc.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>

/// The address sanitizer's own count; its allocator is not the C library's.
extern "C" __attribute__((weak)) size_t __sanitizer_get_current_allocated_bytes();

namespace panel::test {

namespace {

std::string endOf(int status) {
    return WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status))
                               : "exit status " + std::to_string(WEXITSTATUS(status));
}

} // namespace

Progress::Progress()
    : steps_(static_cast<size_t*>(mmap(nullptr, sizeof(size_t), PROT_READ | PROT_WRITE,
                                       MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {}

Progress::~Progress() {
    munmap(const_cast<size_t*>(steps_), sizeof(size_t));
}

std::string inChildProcess(const std::function<std::string()>& work) {
    std::FILE* const words = std::tmpfile();
    const pid_t child = words != nullptr ? fork() : -1;
    if (child == 0) {
        dup2(fileno(words), STDERR_FILENO);
        const std::string wrong = work();
        std::cerr << wrong << std::flush;
        std::exit(wrong.empty() && !testing::Test::HasFailure() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = -1;
    if (child > 0) {
        waitpid(child, &status, 0);
    }
    std::string said;
    if (words != nullptr) {
        std::rewind(words);
        for (int byte = std::fgetc(words); byte != EOF; byte = std::fgetc(words)) {
            said += static_cast<char>(byte);
        }
        static_cast<void>(std::fclose(words));
    }
    return status == 0 ? "" : endOf(status) + ": " + said;
}

size_t allocatedBytes() {
    if (__sanitizer_get_current_allocated_bytes != nullptr) {
        return __sanitizer_get_current_allocated_bytes();
    }
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace panel::test
