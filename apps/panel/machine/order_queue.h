// Gives orders to the control without the panel waiting for it.
#pragma once

#include "machine/order.h"

#include <condition_variable>
#include <mutex>
#include <queue>
#include <thread>

namespace panel {

/// Orders wait for a thread of their own, since a control that is far or busy takes its time. What
/// came of them is an event of type kOrdersDone with the result of carryOut() as `param1`.
class OrderQueue {
  public:
    /// @param atOnce carries orders out in the call that gives them: a script wants the same to
    ///     happen at the same time whenever it runs
    explicit OrderQueue(bool atOnce);
    ~OrderQueue();
    OrderQueue(const OrderQueue&) = delete;
    OrderQueue& operator=(const OrderQueue&) = delete;

    void give(Orders orders);

  private:
    void work();

    bool atOnce_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::queue<Orders> waiting_; ///< guarded, and so is what follows
    bool ending_ = false;
    std::thread worker_;
};

} // namespace panel
