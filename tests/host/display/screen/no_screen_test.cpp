// Screens that cannot be had.
#include "display/screen/screen_back_end.h"
#include "display/screen/screen_device.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace gpi;

TEST(NoScreen, IsReportedInOneLine) {
    const Frame frame(6, 4, kFormat565);
    Signal events;
    MessageQueue messages(events);
    Input input(messages);
    for (const auto open : {openFbdevBackEnd, openDrmBackEnd}) {
        for (const char* const path : {"/nonexistent", "/dev/null", "/dev/zero"}) {
            Settings settings;
            settings.screen = path;
            testing::internal::CaptureStderr();
            EXPECT_EQ(open(settings, frame, input), nullptr) << path;
            const std::string said = testing::internal::GetCapturedStderr();
            EXPECT_EQ(
                said.rfind("gpi: cannot show the display on the screen " + settings.screen, 0), 0U)
                << said;
            EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
        }
    }
}

} // namespace
