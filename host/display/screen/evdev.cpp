// Input devices by the kernel's event interface.
#include "display/screen/device_events.h"
#include "display/screen/input_devices.h"
#include "display/screen/key_code.h"
#include "report.h"
#include "unique_fd.h"

#include <fcntl.h>
#include <libevdev/libevdev.h>
#include <sys/epoll.h>
#include <sys/inotify.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

namespace gpi {
namespace {

struct FreeDevice {
    void operator()(libevdev* device) const { libevdev_free(device); }
};
using Library = std::unique_ptr<libevdev, FreeDevice>;

bool has(const Library& device, unsigned type, unsigned code) {
    return libevdev_has_event_code(device.get(), type, code) != 0;
}

bool isKeyboard(const Library& device) {
    for (unsigned code = KEY_ESC; code <= KEY_CLEAR; ++code) {
        if (placeOfCode(code) != 0 && has(device, EV_KEY, code)) {
            return true;
        }
    }
    return false;
}

bool isMouse(const Library& device) {
    return has(device, EV_REL, REL_X) && has(device, EV_REL, REL_Y) &&
           has(device, EV_KEY, BTN_LEFT);
}

/// Of a touch screen or a tablet. A touch pad's places are none of the screen's.
std::optional<DevicePlaces> placesOf(const Library& device) {
    const input_absinfo* const x = libevdev_get_abs_info(device.get(), ABS_X);
    const input_absinfo* const y = libevdev_get_abs_info(device.get(), ABS_Y);
    const bool pressed = has(device, EV_KEY, BTN_TOUCH) || has(device, EV_KEY, BTN_LEFT);
    const bool pad = libevdev_has_property(device.get(), INPUT_PROP_POINTER) != 0 &&
                     has(device, EV_KEY, BTN_TOOL_FINGER);
    if (x == nullptr || y == nullptr || !pressed || pad || x->maximum <= x->minimum ||
        y->maximum <= y->minimum) {
        return std::nullopt;
    }
    return DevicePlaces{{x->minimum, x->maximum}, {y->minimum, y->maximum}};
}

/// A device that is open and nobody else's.
class EvdevDevice {
  public:
    EvdevDevice(UniqueFd file, Library device, Input& input, ScreenPointer& pointer)
        : file_(std::move(file)),
          device_(std::move(device)),
          events_(input, pointer, placesOf(device_),
                  libevdev_get_event_value(device_.get(), EV_LED, LED_NUML) != 0) {}

    int descriptor() const { return file_.get(); }

    /// False when the device is gone.
    bool read() {
        input_event event{};
        unsigned how = LIBEVDEV_READ_FLAG_NORMAL;
        for (;;) {
            const int status = libevdev_next_event(device_.get(), how, &event);
            if (status == LIBEVDEV_READ_STATUS_SYNC) {
                how = LIBEVDEV_READ_FLAG_SYNC; // some were lost: what has changed comes instead
            } else if (status == -EAGAIN && how == LIBEVDEV_READ_FLAG_SYNC) {
                how = LIBEVDEV_READ_FLAG_NORMAL;
                continue;
            } else if (status < 0) {
                return status == -EAGAIN;
            }
            events_.handle(event.type, event.code, event.value);
            showNumberLock();
        }
    }

  private:
    /// The console, which does that for its own keys, does not get these.
    void showNumberLock() {
        const bool shown = libevdev_get_event_value(device_.get(), EV_LED, LED_NUML) != 0;
        if (has(device_, EV_LED, LED_NUML) && shown != events_.numberLock()) {
            libevdev_kernel_set_led_value(
                device_.get(), LED_NUML, events_.numberLock() ? LIBEVDEV_LED_ON : LIBEVDEV_LED_OFF);
        }
    }

    UniqueFd file_;
    Library device_; ///< needs the file
    DeviceEvents events_;
};

std::unique_ptr<EvdevDevice> openDevice(const std::string& path, Input& input,
                                        ScreenPointer& pointer, std::string& failure) {
    UniqueFd file(open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    libevdev* made = nullptr;
    if (!file) {
        failure = std::strerror(errno);
        return nullptr;
    }
    if (libevdev_new_from_fd(file.get(), &made) != 0) {
        return nullptr; // nothing of the kind
    }
    Library device(made);
    if (!isKeyboard(device) && !isMouse(device) && !placesOf(device)) {
        return nullptr;
    }
    if (const int status = libevdev_grab(device.get(), LIBEVDEV_GRAB); status != 0) {
        failure = std::strerror(-status);
        return nullptr;
    }
    return std::make_unique<EvdevDevice>(std::move(file), std::move(device), input, pointer);
}

class EvdevDevices : public InputDevices {
  public:
    EvdevDevices(const std::string& folder, Input& input, ScreenPointer& pointer)
        : folder_(folder),
          input_(input),
          pointer_(pointer),
          waiting_(epoll_create1(EPOLL_CLOEXEC)),
          arrivals_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        // A device is made first and may be opened a moment later.
        inotify_add_watch(arrivals_.get(), folder.c_str(), IN_CREATE | IN_ATTRIB);
        waitFor(arrivals_.get());
        std::error_code none;
        for (const auto& entry : std::filesystem::directory_iterator(folder, none)) {
            if (const std::string failure = add(entry.path().filename().string());
                !failure.empty()) {
                report("cannot read the input device " + entry.path().string() + ": " + failure);
            }
        }
    }

    int descriptor() const override { return waiting_.get(); }

    void read() override {
        std::array<epoll_event, 16> ready;
        const int count = epoll_wait(waiting_.get(), ready.data(), ready.size(), 0);
        for (int at = 0; at < count; ++at) {
            const int descriptor = ready[static_cast<size_t>(at)].data.fd;
            if (descriptor == arrivals_.get()) {
                greet();
            } else if (!readDevice(descriptor)) {
                std::erase_if(devices_, [descriptor](const auto& device) {
                    return device.second->descriptor() == descriptor;
                });
            }
        }
    }

  private:
    void waitFor(int descriptor) {
        epoll_event event{};
        event.events = EPOLLIN;
        event.data.fd = descriptor;
        epoll_ctl(waiting_.get(), EPOLL_CTL_ADD, descriptor, &event);
    }

    bool readDevice(int descriptor) {
        for (const auto& [name, device] : devices_) {
            if (device->descriptor() == descriptor) {
                return device->read();
            }
        }
        return true; // it has gone meanwhile
    }

    /// Adds the devices that have come.
    void greet() {
        alignas(inotify_event) std::array<char, 4096> news;
        ssize_t length = 0;
        while ((length = ::read(arrivals_.get(), news.data(), news.size())) > 0) {
            for (ssize_t at = 0; at < length;) {
                const auto* const event =
                    reinterpret_cast<const inotify_event*>(&news[static_cast<size_t>(at)]);
                if (event->len > 0) {
                    add(event->name);
                }
                at += static_cast<ssize_t>(sizeof *event + event->len);
            }
        }
    }

    /// @return why it must not be read; empty when all is well, or there is nothing to read
    std::string add(const std::string& name) {
        constexpr std::string_view kPrefix = "event";
        std::string failure;
        if (name.compare(0, kPrefix.size(), kPrefix) != 0 || devices_.contains(name)) {
            return failure;
        }
        if (auto device = openDevice(folder_ + "/" + name, input_, pointer_, failure)) {
            waitFor(device->descriptor());
            devices_.emplace(name, std::move(device));
        }
        return failure;
    }

    std::string folder_;
    Input& input_;
    ScreenPointer& pointer_;
    UniqueFd waiting_;  ///< for all that can be read
    UniqueFd arrivals_; ///< tells of new names in the folder
    std::map<std::string, std::unique_ptr<EvdevDevice>> devices_; ///< by name
};

} // namespace

std::unique_ptr<InputDevices> InputDevices::open(const std::string& folder, Input& input,
                                                 ScreenPointer& pointer) {
    return std::make_unique<EvdevDevices>(folder, input, pointer);
}

} // namespace gpi
