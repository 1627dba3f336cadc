#include "alarm_log.h"

#include <algorithm>

namespace panel {

/// New alarms stand before the old ones. How many are new is what the first old one tells.
bool AlarmLog::follow(const std::vector<Alarm>& standing, uint32_t time) {
    if (standing == standing_) {
        return false;
    }
    size_t fresh = standing.size();
    if (!standing_.empty()) {
        const auto old = std::find(standing.begin(), standing.end(), standing_.front());
        fresh = static_cast<size_t>(old - standing.begin());
    }
    for (size_t i = fresh; i > 0; --i) {
        history_.push_front({time, standing[i - 1]});
    }
    history_.resize(std::min(history_.size(), kMost));
    standing_ = standing;
    return true;
}

} // namespace panel
