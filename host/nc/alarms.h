// What went wrong, the newest first.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>

namespace gpi::nc {

struct Alarm {
    int32_t number; ///< GPI_NC_ALARM_PROGRAM and so on
    std::string text;
};

class Alarms {
  public:
    /// More are not kept: the oldest goes.
    static constexpr size_t kMost = 32;

    void raise(int32_t number, std::string text) {
        list_.push_front({number, std::move(text)});
        if (list_.size() > kMost) {
            list_.pop_back();
        }
    }
    void clearNewest() {
        if (!list_.empty()) {
            list_.pop_front();
        }
    }
    void clear() { list_.clear(); }

    bool any() const { return !list_.empty(); }
    int32_t count() const { return static_cast<int32_t>(list_.size()); }
    /// @return null where there is no such alarm
    const Alarm* at(int32_t index) const {
        const auto place = static_cast<size_t>(index);
        return index >= 0 && place < list_.size() ? &list_[place] : nullptr;
    }

  private:
    std::deque<Alarm> list_;
};

} // namespace gpi::nc
