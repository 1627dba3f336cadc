// Device memory in the address space.
#pragma once

#include <sys/mman.h>

#include <cstddef>
#include <cstdint>
#include <utility>

namespace gpi {

/// Memory of a device that can be written, as long as this lives.
class Mapping {
  public:
    Mapping() = default;
    Mapping(int device, size_t size, off_t offset)
        : start_(mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, device, offset)),
          size_(size) {}
    Mapping(Mapping&& other) noexcept
        : start_(std::exchange(other.start_, MAP_FAILED)), size_(other.size_) {}
    Mapping& operator=(Mapping&& other) noexcept {
        std::swap(start_, other.start_);
        std::swap(size_, other.size_);
        return *this;
    }
    ~Mapping() {
        if (start_ != MAP_FAILED) {
            munmap(start_, size_);
        }
    }

    explicit operator bool() const { return start_ != MAP_FAILED; }
    uint8_t* start() const { return static_cast<uint8_t*>(start_); }

  private:
    void* start_ = MAP_FAILED;
    size_t size_ = 0;
};

} // namespace gpi
