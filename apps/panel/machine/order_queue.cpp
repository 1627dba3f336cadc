#include "machine/order_queue.h"

#include "events.h"

#include <utility>

namespace panel {

void OrderQueue::give(Orders orders) {
    worker_.give([orders = std::move(orders)] {
        postEvent(EventType::OrdersDone, static_cast<uint32_t>(carryOut(orders)), 0);
    });
}

} // namespace panel
