// What a keyboard, mouse or touch screen tells.
#pragma once

#include "display/input_source.h"
#include "display/screen/screen_pointer.h"

#include <cstdint>
#include <optional>

namespace gpi {

/// The values that stand for the two edges of a screen.
struct AxisRange {
    int least;
    int most;
};

/// The places that a device can tell of.
struct DevicePlaces {
    AxisRange columns;
    AxisRange rows;
};

/// Hands on the events of one device, as linux/input-event-codes.h names them.
class DeviceEvents {
  public:
    /// @param places nothing for a device without any: a keyboard, a mouse
    /// @param numberLock whether the keypad types digits at first
    DeviceEvents(Input& input, ScreenPointer& pointer, std::optional<DevicePlaces> places,
                 bool numberLock)
        : source_(input), pointer_(pointer), places_(places), numberLock_(numberLock) {}

    void handle(unsigned type, unsigned code, int value);

    bool numberLock() const { return numberLock_; }

  private:
    void handleKey(unsigned code, int value);
    void setButton(Button button, bool down);
    void finishReport();

    InputSource source_;
    ScreenPointer& pointer_;
    std::optional<DevicePlaces> places_;
    bool numberLock_;

    // The report that is coming in; it ends with an event of its own.
    int columns_ = 0; ///< moved by
    int rows_ = 0;
    double across_ = 0; ///< the last place, 0 to 1
    double down_ = 0;
    bool placed_ = false;
    bool pressed_ = false; ///< or released
    uint8_t buttons_ = 0;  ///< held, bits of Button
    bool finger_ = false;  ///< the device is touched; there is nothing that hovers
};

} // namespace gpi
