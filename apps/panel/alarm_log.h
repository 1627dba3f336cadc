// Alarms that came and went.
#pragma once

#include "machine/snapshot.h"

#include <deque>

namespace panel {

/// Follows the alarms of the control. Keeps the newest kMost.
class AlarmLog {
  public:
    static constexpr size_t kMost = 100;

    struct Entry {
        uint32_t time; ///< when it was seen first
        Alarm alarm;
    };

    /// Notes the alarms that have come since.
    /// @return whether the alarms that stand are others
    bool follow(const std::vector<Alarm>& standing, uint32_t time);

    const std::vector<Alarm>& standing() const { return standing_; }
    /// The newest first.
    const std::deque<Entry>& history() const { return history_; }

  private:
    std::vector<Alarm> standing_;
    std::deque<Entry> history_;
};

inline bool operator==(const Alarm& a, const Alarm& b) {
    return a.number == b.number && a.text == b.text;
}

} // namespace panel
