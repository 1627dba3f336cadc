// Does what the panel cannot wait for.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <queue>
#include <thread>

namespace panel {

/// A thread that does one task after the other. A task tells the panel by an event.
class Worker {
  public:
    using Task = std::function<void()>;

    /// @param atOnce does tasks in the call that gives them: a script wants the same to happen at
    ///     the same time whenever it runs
    explicit Worker(bool atOnce);
    /// Waits for the task that it is at, and drops those behind it.
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    void give(Task task);

  private:
    void work();

    bool atOnce_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::queue<Task> waiting_; ///< guarded, and so is what follows
    bool ending_ = false;
    std::thread thread_;
};

} // namespace panel
