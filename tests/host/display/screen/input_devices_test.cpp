// Folders of input devices that are none. (tests/devices has real ones.)
#include "display/screen/input_devices.h"

#include "support/environment.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <filesystem>

namespace {

using namespace gpi;
using gpi::test::TemporaryFolder;

class NoDevices : public testing::Test {
  protected:
    std::unique_ptr<InputDevices> open(const std::string& folder) {
        testing::internal::CaptureStderr();
        auto devices = InputDevices::open(folder, input_, pointer_);
        said_ = testing::internal::GetCapturedStderr();
        return devices;
    }

    Signal events_;
    MessageQueue messages_{events_};
    Input input_{messages_};
    ScreenPointer pointer_{Projection(View(), {10, 10}, {10, 10}), {10, 10}, {10, 10}};
    std::string said_;
};

TEST_F(NoDevices, AreNoReasonToComplain) {
    const TemporaryFolder folder;
    folder.write("event0", "a file");
    folder.write("mouse0", "another");
    ASSERT_NE(open(folder.path()), nullptr);
    EXPECT_EQ(said_, "");
    ASSERT_NE(open("/nonexistent"), nullptr);
    EXPECT_EQ(said_, "");
}

TEST_F(NoDevices, AreReportedWhenTheyCannotBeOpened) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path("event7"));
    ASSERT_NE(open(folder.path()), nullptr);
    EXPECT_EQ(said_,
              "gpi: cannot read the input device " + folder.path("event7") + ": Is a directory\n");
}

TEST_F(NoDevices, ThatComeLaterAreLookedAt) {
    const TemporaryFolder folder;
    const auto devices = open(folder.path());
    pollfd news{devices->descriptor(), POLLIN, 0};
    EXPECT_EQ(poll(&news, 1, 0), 0);
    folder.write("event0", "a file");
    EXPECT_EQ(poll(&news, 1, 0), 1);
    devices->read();
    EXPECT_EQ(poll(&news, 1, 0), 0);
    EXPECT_EQ(messages_.take(), std::nullopt);
}

} // namespace
