#include "net/line.h"

#include "net/error.h"

#include <new>

namespace gpi {
namespace {

constexpr size_t kMostIdle = 4;

} // namespace

Line::Line() : multi_(curl_multi_init()) {
    if (multi_ == nullptr) {
        throw std::bad_alloc();
    }
}

LinePool::Lease LinePool::take() {
    const std::lock_guard lock(mutex_);
    require(out_ < most_, G_NET_STATE);
    std::unique_ptr<Line> line;
    if (idle_.empty()) {
        idle_.reserve(kMostIdle); // so that giving back cannot fail
        line = std::make_unique<Line>();
    } else {
        line = std::move(idle_.back());
        idle_.pop_back();
    }
    ++out_;
    return Lease(line.release(), GiveBack{shared_from_this()});
}

void LinePool::put(std::unique_ptr<Line> line) {
    const std::lock_guard lock(mutex_);
    --out_;
    if (idle_.size() < kMostIdle) {
        idle_.push_back(std::move(line));
    }
}

} // namespace gpi
