#include "display/screen/screen_back_end.h"

#include "display/frame_show.h"
#include "display/screen/graphics_console.h"
#include "display/screen/screen_device.h"
#include "display/screen/screen_writer.h"
#include "report.h"

#include <poll.h>

#include <utility>

namespace gpi {
namespace {

class ScreenShow : public FrameShow {
  public:
    ScreenShow(std::unique_ptr<ScreenDevice> device, const Frame& frame)
        : device_(std::move(device)), writer_(*device_, {frame.width, frame.height}) {}

    void run(FrameExchange& frames) override {
        bool fresh = false;
        const auto write = [&](const FrameExchange::News& news) {
            writer_.write(news);
            fresh = true;
        };
        pollfd news{frames.descriptor(), POLLIN, 0};
        while (poll(&news, 1, -1) >= 0 && frames.take(write)) {
            if (std::exchange(fresh, false)) {
                writer_.show();
            }
            frames.confirm();
        }
    }

  private:
    GraphicsConsole console_; ///< gets its text back when the device is closed
    std::unique_ptr<ScreenDevice> device_;
    ScreenWriter writer_;
};

using OpenDevice = std::unique_ptr<ScreenDevice> (*)(const std::string& path, std::string& failure);

std::unique_ptr<BackEnd> open(OpenDevice openDevice, const Settings& settings, const Frame& frame) {
    std::string failure;
    auto device = openDevice(settings.screen, failure);
    if (device == nullptr) {
        const std::string name = settings.screen.empty() ? "" : " " + settings.screen;
        report("cannot show the display on the screen" + name + ": " + failure);
        return nullptr;
    }
    return showInThread(std::make_unique<ScreenShow>(std::move(device), frame), frame,
                        Settling::Waits);
}

} // namespace

std::unique_ptr<BackEnd> openFbdevBackEnd(const Settings& settings, const Frame& frame) {
    return open(openFbdev, settings, frame);
}

std::unique_ptr<BackEnd> openDrmBackEnd(const Settings& settings, const Frame& frame) {
    return open(openDrm, settings, frame);
}

} // namespace gpi
