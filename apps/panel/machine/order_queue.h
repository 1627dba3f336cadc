// Gives orders to the control without the panel waiting for it.
#pragma once

#include "machine/order.h"
#include "machine/worker.h"

namespace panel {

/// A control that is far or busy takes its time. What came of orders is an event of type OrdersDone
/// with the result of carryOut() as `param1`.
class OrderQueue {
  public:
    /// @param atOnce carries orders out in the call that gives them
    explicit OrderQueue(bool atOnce) : worker_(atOnce) {}

    void give(Orders orders);

  private:
    Worker worker_;
};

} // namespace panel
