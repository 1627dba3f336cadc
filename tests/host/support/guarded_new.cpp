// `new` of a kilobyte and more gives a block between inaccessible pages: for programs of tests that
// draw on the platform's own surfaces. Sanitizers have operators of their own.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

#include "../../support/guarded_surface.h"

#include <cstdlib>
#include <map>
#include <mutex>
#include <new>
#include <utility>

namespace {

using quarlo::test::Against;
using quarlo::test::GuardedMemory;
using Blocks = std::map<void*, GuardedMemory*>;

constexpr size_t kLarge = 1024;

/// Guarded blocks by their address.
class GuardedHeap {
  public:
    void* allocate(size_t size) {
        auto* const memory =
            new GuardedMemory(size, Against::End, __STDCPP_DEFAULT_NEW_ALIGNMENT__);
        const std::lock_guard lock(mutex_);
        blocks_.emplace(memory->data(), memory);
        return memory->data();
    }

    /// False for a block that is none of its own.
    bool release(void* block) {
        Blocks::node_type found; // freed after the lock, by the operator that asks here
        {
            const std::lock_guard lock(mutex_);
            found = blocks_.extract(block);
        }
        if (found) {
            delete found.mapped();
        }
        return bool(found);
    }

  private:
    std::mutex mutex_;
    Blocks blocks_;
};

/// It outlives everything that is freed after main().
GuardedHeap& heap() {
    static auto* const heap = new GuardedHeap;
    return *heap;
}

void* allocate(size_t size) {
    if (size >= kLarge) {
        return heap().allocate(size);
    }
    void* const block = std::malloc(size > 0 ? size : 1);
    return block != nullptr ? block : throw std::bad_alloc();
}

void release(void* block) {
    if (!heap().release(block)) {
        std::free(block);
    }
}

} // namespace

// What the library's other forms of new and delete stand on.

void* operator new(size_t size) {
    return allocate(size);
}

void operator delete(void* block) noexcept {
    release(block);
}

void operator delete(void* block, size_t) noexcept {
    release(block);
}

#endif
