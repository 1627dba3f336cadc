#include "message/message_handler.h"

namespace gpi {

void MessageHandler::set(GPIHostMessageHandler function, void* context) {
    std::unique_lock lock(mutex_);
    function_ = function;
    context_ = context;
    ended_.wait(lock, [this] { return isIdle() || runner_ == std::this_thread::get_id(); });
}

bool MessageHandler::offer(MessageQueue& messages) {
    std::unique_lock lock(mutex_);
    if (function_ == nullptr || !isIdle()) {
        return false;
    }
    const auto message = messages.take();
    if (!message) {
        return false;
    }
    const GPIHostMessageHandler function = function_;
    void* const context = context_;
    runner_ = std::this_thread::get_id();
    lock.unlock(); // it may set another one
    function(context, &*message);
    lock.lock();
    runner_ = std::thread::id();
    lock.unlock();
    ended_.notify_all();
    return true;
}

} // namespace gpi
