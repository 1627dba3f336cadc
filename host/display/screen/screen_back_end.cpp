#include "display/screen/screen_back_end.h"

#include "display/frame_show.h"
#include "display/screen/graphics_console.h"
#include "display/screen/input_devices.h"
#include "display/screen/screen_device.h"
#include "display/screen/screen_writer.h"
#include "report.h"

#include <poll.h>

#include <iterator>
#include <utility>

namespace gpi {
namespace {

constexpr const char* kInputDevices = "/dev/input";

class ScreenShow : public FrameShow {
  public:
    ScreenShow(std::unique_ptr<ScreenDevice> device, const Settings& settings, const Frame& frame,
               Input& input)
        : device_(std::move(device)), writer_(*device_, {frame.width, frame.height}) {
        if (settings.screenInput) {
            inputs_ = InputDevices::open(kInputDevices, input, writer_.pointer());
        }
    }

    void run(FrameExchange& frames) override {
        bool fresh = false;
        const auto write = [&](const FrameExchange::News& news) {
            writer_.write(news);
            fresh = true;
        };
        while (wait(frames) && frames.take(write)) {
            if (std::exchange(fresh, false)) {
                writer_.show();
            }
            frames.confirm();
        }
    }

  private:
    /// Returns when there may be something to show; reads the input devices.
    bool wait(FrameExchange& frames) {
        pollfd news[] = {{frames.descriptor(), POLLIN, 0},
                         {inputs_ != nullptr ? inputs_->descriptor() : -1, POLLIN, 0}};
        if (poll(news, std::size(news), -1) < 0) {
            return false;
        }
        if (news[1].revents != 0) {
            inputs_->read();
            if (writer_.pointerHasMoved()) {
                frames.again();
            }
        }
        return true;
    }

    GraphicsConsole console_; ///< gets its text back when the device is closed
    std::unique_ptr<ScreenDevice> device_;
    ScreenWriter writer_;
    std::unique_ptr<InputDevices> inputs_; ///< they move the writer's pointer
};

using OpenDevice = std::unique_ptr<ScreenDevice> (*)(const std::string& path, std::string& failure);

std::unique_ptr<BackEnd> open(OpenDevice openDevice, const Settings& settings, const Frame& frame,
                              Input& input) {
    std::string failure;
    auto device = openDevice(settings.screen, failure);
    if (device == nullptr) {
        const std::string name = settings.screen.empty() ? "" : " " + settings.screen;
        report("cannot show the display on the screen" + name + ": " + failure);
        return nullptr;
    }
    return showInThread(std::make_unique<ScreenShow>(std::move(device), settings, frame, input),
                        frame, Settling::Waits);
}

} // namespace

std::unique_ptr<BackEnd> openFbdevBackEnd(const Settings& settings, const Frame& frame,
                                          Input& input) {
    return open(openFbdev, settings, frame, input);
}

std::unique_ptr<BackEnd> openDrmBackEnd(const Settings& settings, const Frame& frame,
                                        Input& input) {
    return open(openDrm, settings, frame, input);
}

} // namespace gpi
