#include "display/screen/device_events.h"

#include "display/screen/key_code.h"

#include <linux/input-event-codes.h>

#include <utility>

namespace gpi {
namespace {

double shareOf(int value, const AxisRange& range) {
    return (static_cast<double>(value) - range.least) /
           (static_cast<double>(range.most) - range.least + 1);
}

} // namespace

void DeviceEvents::handle(unsigned type, unsigned code, int value) {
    switch (type) {
    case EV_KEY:
        handleKey(code, value);
        break;
    case EV_REL:
        columns_ += code == REL_X ? value : 0;
        rows_ += code == REL_Y ? value : 0;
        break;
    case EV_ABS:
        if (places_ && code == ABS_X) {
            across_ = shareOf(value, places_->columns);
            placed_ = true;
        } else if (places_ && code == ABS_Y) {
            down_ = shareOf(value, places_->rows);
            placed_ = true;
        }
        break;
    case EV_SYN:
        if (code == SYN_REPORT) {
            finishReport();
        }
        break;
    default:
        break;
    }
}

void DeviceEvents::handleKey(unsigned code, int value) {
    const bool down = value != 0; // 1 for a press, 2 for a repeat
    switch (code) {
    case BTN_TOUCH:
        finger_ = true;
        setButton(Button::Left, down);
        return;
    case BTN_LEFT:
        setButton(Button::Left, down);
        return;
    case BTN_RIGHT:
        setButton(Button::Right, down);
        return;
    case KEY_NUMLOCK:
        numberLock_ = numberLock_ != (value == 1);
        break;
    default:
        break;
    }
    const uint8_t place = placeOfCode(code);
    const uint8_t number = numberAt(place, numberLock_);
    if (number != 0) {
        source_.key({number, place}, down);
    }
}

void DeviceEvents::setButton(Button button, bool down) {
    const auto bit = static_cast<uint8_t>(button);
    buttons_ = static_cast<uint8_t>(down ? buttons_ | bit : buttons_ & ~bit);
    pressed_ = true;
}

void DeviceEvents::finishReport() {
    const bool placed = std::exchange(placed_, false);
    const bool moved = columns_ != 0 || rows_ != 0;
    if (moved) {
        pointer_.moveBy(std::exchange(columns_, 0), std::exchange(rows_, 0));
    }
    if (placed) {
        pointer_.moveTo(across_, down_, !finger_);
    }
    if (std::exchange(pressed_, false) || placed || moved) {
        source_.pointer(pointer_.pixel(), buttons_);
    }
}

} // namespace gpi
