// The row of ten keys along the lower edge.
#pragma once

#include "context.h"

#include <functional>
#include <optional>
#include <span>

namespace panel {

class SoftKeys {
  public:
    static constexpr size_t kCount = 10;

    /// Tells whether the function of a key is on.
    using IsOn = std::function<bool(Action)>;

    SoftKeys(Context& context, const GRect& area, IsOn isOn);

    /// Shows other keys. The last place is for the key that switches rows.
    void show(std::span<const SoftKey> keys, const SoftKey& last);
    void update();
    void draw(const GRect& area) const;

    /// Which key is at a point.
    std::optional<size_t> at(GPoint point) const;
    const SoftKey& key(size_t place) const { return keys_[place]; }
    /// Where its caption stands.
    GRect captionPlace(size_t key) const;
    /// Shows a key as pressed, or none.
    void press(std::optional<size_t> key);

  private:
    GRect place(size_t key) const;
    void drawKey(size_t key) const;

    Context& context_;
    GRect area_;
    IsOn isOn_;
    std::array<SoftKey, kCount> keys_{};
    std::array<bool, kCount> on_{};
    std::optional<size_t> pressed_;
};

} // namespace panel
