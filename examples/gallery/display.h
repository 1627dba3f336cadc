// The platform's display, and a page of its size that sheets are drawn on.
#pragma once

#include <quarlo/types.h>

#include <cstddef>
#include <string>

namespace gallery {

/// The platform, running while this lives.
class Display {
  public:
    Display();
    ~Display();
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    /// Whether the platform started and everything needed is there.
    bool ready() const { return page_ != nullptr; }

    /// Draws a sheet and makes it visible.
    void show(size_t sheet);

    /// Writes what is shown to a PNG file.
    bool write(const std::string& path) const;

  private:
    void transfer();

    bool started_;
    GDrawHandle* screen_ = nullptr; ///< on the display
    GDrawHandle* page_ = nullptr;   ///< on a memory surface
    GVram* indexed_ = nullptr;      ///< between the two where the display has a palette
};

} // namespace gallery
