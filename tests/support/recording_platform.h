// A platform for tests: it answers any subset of the services, keeps every call, and watches the
// memory that it hands out.
#pragma once

#include "support/guarded_surface.h"
#include "support/services.h"

#include <gpi/gpi.h>

#include <any>
#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace quarlo::test {

/// Entry points of the platform library are recorded like services, under these numbers; those for
/// messages with the message's number.
enum EntryPoint {
    kFontCount = -21,
    kShutdownEvents = -24,
    kTranslateMessage = -1,
    kDispatchMessage = -2
};

/// An argument or result of a service, whatever its type.
template <typename Value>
int64_t asWord(Value value) {
    if constexpr (std::is_pointer_v<Value>) {
        return static_cast<int64_t>(reinterpret_cast<uintptr_t>(value));
    } else {
        return static_cast<int64_t>(value);
    }
}

template <typename Value>
Value fromWord(int64_t word) {
    if constexpr (std::is_pointer_v<Value>) {
        // A recorded word becomes the pointer that it was.
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        return reinterpret_cast<Value>(static_cast<uintptr_t>(word));
    } else if constexpr (!std::is_void_v<Value>) {
        return static_cast<Value>(word);
    }
}

/// A call that reached the platform.
struct ServiceCall {
    int service;
    std::vector<int64_t> arguments;

    bool operator==(const ServiceCall&) const = default;
};

std::ostream& operator<<(std::ostream& out, const ServiceCall& call);

/// The call of a service with these arguments.
template <typename... Args>
ServiceCall call(int service, Args... args) {
    return {service, {asWord(args)...}};
}

/// A drawing mode that the library does not know: models take a pixel one up, and so do the
/// operations of RecordingPlatform::countPaint(), in any mode.
inline constexpr int32_t kCountingMode = 4;

/// The one platform of the process while it lives. It starts with every service bound, no device
/// surface and nothing recorded. At its end it fails the test for blocks that were not freed.
class RecordingPlatform {
  public:
    static constexpr int kLastService = 207;

    RecordingPlatform();
    ~RecordingPlatform();
    RecordingPlatform(const RecordingPlatform&) = delete;
    RecordingPlatform& operator=(const RecordingPlatform&) = delete;

    static RecordingPlatform& current();

    /// Empties the library's service table, as it is before GetGPIFunction().
    void unbind();
    /// Takes services away, bound ones too.
    void remove(std::initializer_list<int> services);
    /// Offers a service again; it must be bound anew.
    void restore(int service);
    bool offers(int service) const;

    /// What a service without a function of its own returns; 1 at first, or null where it returns a
    /// pointer.
    void answer(int service, int64_t result) { answers_[service] = result; }

    /// Gives a service a function of its own.
    template <int Number, typename Function>
    void serve(Function function) {
        functions_[Number] = std::function<ServiceSignature<Number>>(std::move(function));
    }

    /// Everything that was called, and every service number that was asked for.
    std::vector<ServiceCall> calls;
    std::vector<int> requests;

    std::vector<ServiceCall> callsOf(int service) const;
    size_t count(int service) const { return callsOf(service).size(); }
    void forget();

    // Memory. Blocks never start zeroed and lie between inaccessible pages; a freed block is
    // inaccessible too. Freeing what is not in use, or in another space than it came from, fails
    // the test.

    /// Makes the n-th allocation from now fail, 1 being the next; 0 fails none.
    void failAllocation(int n);
    /// The same for several: "that allocation" is the last of them.
    void failAllocations(const std::set<int>& failing);
    /// Whether that allocation was asked for.
    bool allocationFailed() const { return allocationFailed_; }
    /// Has no memory for larger blocks.
    void limitBlocks(int32_t bytes) { mostBytes_ = bytes; }
    /// Gives blocks for a size of zero or less, instead of null.
    void grantEmptyBlocks(bool grant) { grantEmptyBlocks_ = grant; }
    /// Which end of the blocks to come touches an inaccessible page.
    void placeBlocks(Against side) { side_ = side; }
    size_t blocksInUse() const { return blocks_.size(); }
    size_t bytesInUse() const;

    // Display. Surfaces stay the test's.

    /// Hands out a surface as device surface `number`, its id being set to that.
    void addDisplay(int16_t number, GuardedSurface& surface);
    /// Device surfaces handed out and not given back, counted for each handing out.
    int displaysInUse() const { return displaysInUse_; }
    /// Keeps device operations (5, 6, 7, 43, 67, 68, 70) out of `calls`.
    void recordOperations(bool record) { recordOperations_ = record; }
    /// Has device operations take each pixel of 8 bits one up, whatever the colour and the mode: a
    /// surface of zeros then tells how often its pixels were painted. None is recorded.
    void countPaint();

    /// Ticks of the clock (services 27 and 28).
    int64_t clock = 0;

    // What services call.

    void record(ServiceCall call);
    template <typename Signature>
    const std::function<Signature>* functionOf(int service) const {
        return std::any_cast<std::function<Signature>>(&functions_[static_cast<size_t>(service)]);
    }
    int64_t answerOf(int service, int64_t otherwise) const;
    GPIFunction request(int service);

  private:
    struct Block {
        int32_t space;
        std::unique_ptr<GuardedMemory> memory;
    };

    void* allocate(int32_t space, int32_t size);
    void* reallocate(int32_t space, void* block, int32_t size);
    int32_t release(int32_t space, void* block);
    void serveMemory();
    void serveDisplay();
    void serveOperations();
    void serveEvents();

    std::array<bool, kLastService + 1> offered_{};
    std::array<std::any, kLastService + 1> functions_;
    std::map<int, int64_t> answers_;

    std::map<void*, Block> blocks_;
    int allocations_ = 0; ///< since failAllocations()
    std::set<int> failing_;
    bool allocationFailed_ = false;
    int32_t mostBytes_ = INT32_MAX;
    bool grantEmptyBlocks_ = false;
    Against side_ = Against::End;

    std::map<int, GVram*> displays_;
    int displaysInUse_ = 0;
    bool recordOperations_ = true;
    struct {
        GVram* surface;
        int x;
        int y;
        uint32_t pixel;
        int mode;
    } cursor_{};
};

/// Runs `operation` with its first allocation failing, then its second, and so on until none
/// fails.
template <typename Operation>
void failEachAllocation(RecordingPlatform& platform, Operation operation) {
    for (int n = 1;; ++n) {
        platform.failAllocation(n);
        operation();
        if (!platform.allocationFailed()) {
            break;
        }
    }
    platform.failAllocation(0);
}

} // namespace quarlo::test
