#include "app/program_store.h"

#include "app/arguments.h"
#include "file/error.h"
#include "file/path_text.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>

namespace gpi {
namespace {

/// What a new program does before it begins.
class Actions {
  public:
    explicit Actions(const std::string& directory) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addchdir_np(&actions_, directory.c_str());
    }
    ~Actions() { posix_spawn_file_actions_destroy(&actions_); }
    Actions(const Actions&) = delete;
    Actions& operator=(const Actions&) = delete;

    const posix_spawn_file_actions_t* get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_;
};

pid_t spawn(const std::string& program, std::vector<std::string> words,
            const std::string& directory) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    const Actions actions(directory);
    pid_t number = 0;
    const int failure =
        posix_spawn(&number, program.c_str(), actions.get(), nullptr, arguments.data(), environ);
    if (failure != 0) {
        throw IoError(failure == ENOEXEC ? G_IO_UNSUPPORTED : ioErrorOf(failure));
    }
    return number;
}

} // namespace

pid_t ProgramStore::launch(const Start& start, bool awaited) {
    const std::u16string_view name = pathText(start.program);
    if (name.empty() || name.find_first_of(u"/\\:") != name.npos || name.starts_with(u'.')) {
        throw IoError(G_IO_DENIED);
    }
    const std::string program = programs_.resolve(start.program).string();
    const std::string directory =
        files_.resolve(start.directory != nullptr ? start.directory : u"").string();
    std::vector<std::string> words = wordsOf(start.arguments);
    words.insert(words.begin(), program);
    const std::lock_guard lock(mutex_);
    reap();
    const bool runs = std::any_of(running_.begin(), running_.end(), [&program](const auto& entry) {
        return entry.second.program == program;
    });
    if (start.single && runs) {
        throw IoError(G_IO_IN_USE);
    }
    const pid_t number = spawn(program, std::move(words), directory);
    running_[number] = {program, awaited};
    return number;
}

pid_t ProgramStore::start(const Start& start) {
    return launch(start, false);
}

int32_t ProgramStore::run(const Start& start) {
    const pid_t number = launch(start, true);
    int status = 0;
    while (waitpid(number, &status, 0) < 0) {
        if (errno != EINTR) {
            throwSystemError();
        }
    }
    const std::lock_guard lock(mutex_);
    running_.erase(number);
    return WIFSIGNALED(status) ? 256 + WTERMSIG(status) : WEXITSTATUS(status);
}

bool ProgramStore::end(pid_t number) {
    const std::lock_guard lock(mutex_);
    reap();
    return running_.contains(number) && kill(number, SIGTERM) == 0;
}

void ProgramStore::reap() {
    std::erase_if(running_, [](const auto& entry) {
        return !entry.second.awaited && waitpid(entry.first, nullptr, WNOHANG) != 0;
    });
}

} // namespace gpi
