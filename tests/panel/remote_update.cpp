// Measures how long a remote viewer waits for one readout of the panel: from the change to the
// moment at which its picture is there. Prints the median and the longest of many times.
#include "far_end.h"
#include "panel_bench.h"
#include "vnc/served_display.h"
#include "vnc/viewer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <vector>

namespace panel::test {
namespace {

TEST(RemoteUpdate, OfTheClock) {
    using Clock = std::chrono::steady_clock;
    using Microseconds = std::chrono::duration<double, std::micro>;
    testing::internal::CaptureStderr();
    Bench bench({{"QUARLO_DISPLAY", "vnc"}, {"QUARLO_VNC_PORT", "0"}});
    gpi::test::Viewer viewer(gpi::test::portIn(testing::internal::GetCapturedStderr()));
    ASSERT_TRUE(viewer.connected());
    std::vector<double> times;
    for (int round = 0; round < 200; ++round) {
        GPIHostStepClock(1000);
        const auto before = Clock::now();
        GECheckTimer();
        bench.panel().handlePending();
        ASSERT_TRUE(viewer.update());
        times.push_back(Microseconds(Clock::now() - before).count());
        ASSERT_TRUE(viewer.sync()); // nothing more is on its way
        ASSERT_EQ(checksum(viewer.picture()), GPIHostFrameChecksum());
    }
    std::sort(times.begin(), times.end());
    std::cout << "the clock at a viewer: median " << times[times.size() / 2] << " us, longest "
              << times.back() << " us\n";
}

} // namespace
} // namespace panel::test
