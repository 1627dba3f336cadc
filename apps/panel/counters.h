// What the panel counts of its own work.
#pragma once

#include <quarlo/quarlo.h>

#include <cstdint>

namespace panel {

/// Counters stand in a typed memory block, "PanelCounters", where any other part of a program, or a
/// debugger, finds them by name.
class Counters {
  public:
    enum Counter : uint32_t {
        Events,         ///< taken from the queue
        EventsOfSecond, ///< in the last whole second
        Redraws,        ///< areas drawn anew and flushed
        Pixels,         ///< of these areas
        LastMicros,     ///< time of the last pass over the damage
        WorstMicros,    ///< of the longest
        Wakeups,        ///< of the main loop
        Last = Wakeups,
    };

    Counters() : block_(GMGMemCreate(u"PanelCounters", (Last + 1) * kSize)) {}
    ~Counters() { GMGMemDelete(block_); }
    Counters(const Counters&) = delete;
    Counters& operator=(const Counters&) = delete;

    int32_t operator[](Counter counter) const { return GMGMemGetLong(block_, counter * kSize); }
    void set(Counter counter, int32_t value) { GMGMemSetLong(block_, counter * kSize, value); }
    void add(Counter counter, int32_t more) { set(counter, (*this)[counter] + more); }

    void clear() {
        for (uint32_t counter = 0; counter <= Last; ++counter) {
            GMGMemSetLong(block_, counter * kSize, 0);
        }
    }

  private:
    static constexpr uint32_t kSize = sizeof(int32_t);

    void* block_;
};

} // namespace panel
