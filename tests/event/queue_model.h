// Calls of the queue, and a plain model that keeps positions, flags and a scratch copy, step by
// step.
#pragma once

#include "event/pending.h"

#include <array>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace quarlo::test {

class QueueModel {
    struct Place {
        bool used = false;
        GEventMsg event{};
    };

    using Places = std::array<Place, 50>;

  public:
    int taken = 0;
    int signalled = 0;
    bool forced = false;

    int post(const GEventMsg& e, bool unique) {
        if (places[write].used) {
            return 0;
        }
        if (forced) {
            return force(e, unique);
        }
        for (size_t i = 0; unique && i < 50; ++i) {
            const Place& p = places[i];
            const bool equal = p.used && p.event.type == e.type && p.event.target == e.target;
            if (equal && e.type != 1) {
                return 1;
            }
            if (equal && p.event.param1 == e.param1 && p.event.param2 == e.param2) {
                return 0;
            }
        }
        places[write] = {true, e};
        write = (write + 1) % 50;
        ++signalled;
        return 1;
    }

    int take(GEventMsg& out) {
        if (read != write) {
            while (!places[read].used && read != write) {
                read = (read + 1) % 50;
            }
        }
        if (read == write && !places[read].used) {
            return 0;
        }
        out = places[read].event;
        places[read].used = false;
        read = (read + 1) % 50;
        ++taken;
        return 1;
    }

    void clearTarget(uint32_t target) {
        if (read == write) {
            return;
        }
        size_t keep = read;
        for (size_t i = read; i != write; i = (i + 1) % 50) {
            if (places[i].used && places[i].event.target != target) {
                if (keep != i) {
                    places[keep] = places[i];
                    places[i] = {};
                }
                keep = (keep + 1) % 50;
            } else {
                places[i].used = false;
            }
        }
        write = keep;
    }

    void clearTimer(uint32_t target, uint16_t id) {
        for (Place& p : places) {
            if (p.used && p.event.type == 1 && p.event.target == target &&
                (p.event.param1 & 0xFFFF) == id) {
                p.used = false;
                ++taken;
            }
        }
    }

    void clearAll() {
        const bool full = places[write].used;
        size_t i = read;
        for (size_t n = 0; n < 50 && (full || i != write); ++n) {
            places[i].used = false;
            i = (i + 1) % 50;
        }
    }

  private:
    int force(const GEventMsg& e, bool unique) {
        Places scratch{};
        size_t count = 0;
        const auto copy = [&](const GEventMsg& kept) {
            scratch[(read + count++) % 50] = {true, kept};
        };
        size_t s = read;
        while (s != write && places[s].used && places[s].event.type == e.type &&
               places[s].event.target != e.target) {
            copy(places[s].event);
            places[s].used = false;
            s = (s + 1) % 50;
        }
        if (s != write && unique && places[s].used && places[s].event.type == e.type &&
            places[s].event.target == e.target) {
            return 1;
        }
        copy(e);
        for (size_t i = read; i != write; i = (i + 1) % 50) {
            if (places[i].used && places[i].event.target != e.target) {
                copy(places[i].event);
            }
        }
        for (size_t n = 0; n < count; ++n) {
            places[(read + n) % 50] = scratch[(read + n) % 50];
        }
        write = (read + count) % 50;
        ++signalled;
        return 1;
    }

    Places places;
    size_t read = 0;
    size_t write = 0;
};

/// A call of the queue with an event, of which it takes what it needs.
struct QueueCall {
    enum Kind { Post, PostUnique, Take, ClearTarget, ClearTimer, Pump, Force, DoNotForce };

    Kind kind;
    GEventMsg event;
};

inline std::ostream& operator<<(std::ostream& out, const QueueCall& call) {
    constexpr const char* kNames[] = {"post",        "post unique", "take",  "clear target",
                                      "clear timer", "pump",        "force", "do not force"};
    return out << kNames[static_cast<int>(call.kind)] << ' ' << call.event;
}

/// Makes calls on the queue and on the model. @return where they differ; an empty text if nowhere
inline std::string differenceAfter(const std::vector<QueueCall>& calls) {
    EventPlatform platform;
    QueueModel model;
    std::ostringstream difference;
    const auto take = [&] {
        GEventMsg expected = event(77, 77);
        GEventMsg actual = expected;
        const int wanted = model.take(expected);
        if (GEGetEvent(&actual, 0) != wanted || !(actual == expected)) {
            difference << "took " << actual << " instead of " << expected << "; ";
        }
        return wanted;
    };
    for (const auto& [kind, message] : calls) {
        switch (kind) {
        case QueueCall::Post:
        case QueueCall::PostUnique: {
            const bool unique = kind == QueueCall::PostUnique;
            if (GESetEvent(message, unique) != model.post(message, unique)) {
                difference << "another result of posting " << message << "; ";
            }
            break;
        }
        case QueueCall::Take:
            take();
            break;
        case QueueCall::ClearTarget:
            GEClearTargetEvent(message.target);
            model.clearTarget(message.target);
            break;
        case QueueCall::ClearTimer:
            GEClearTimerEvent(message.target, static_cast<uint16_t>(message.param1));
            model.clearTimer(message.target, static_cast<uint16_t>(message.param1));
            break;
        case QueueCall::Pump:
            GEClearWindowsEvent();
            model.clearAll();
            break;
        case QueueCall::Force:
        case QueueCall::DoNotForce:
            model.forced = kind == QueueCall::Force;
            GESetForceEventFlag(model.forced);
            break;
        }
    }
    while (take() == 1) {
    }
    if (platform.count(31) != static_cast<size_t>(model.signalled)) {
        difference << platform.count(31) << " signals instead of " << model.signalled << "; ";
    }
    if (platform.count(32) != static_cast<size_t>(model.taken)) {
        difference << platform.count(32) << " events taken instead of " << model.taken << "; ";
    }
    if (platform.count(34) != platform.count(35)) {
        difference << "the lock is not balanced";
    }
    return difference.str();
}

} // namespace quarlo::test
