#include "support/started_platform.h"

#include <gpi/host.h>

#include <gtest/gtest.h>

#include <string_view>

namespace {

using namespace gpi::test;

const auto start = service<GPIStart>(GPI_SERVICE_START);
const auto startSecond = service<GPIStartSecond>(GPI_SERVICE_START_SECOND);
const auto stopFirst = service<GPIStopFirst>(GPI_SERVICE_STOP_FIRST);
const auto stop = service<GPIStop>(GPI_SERVICE_STOP);
const auto getSurface = service<GPIGetSurface>(GPI_SERVICE_GET_SURFACE);
const auto flush = service<GPIFlush>(GPI_SERVICE_FLUSH);

TEST(Lifecycle, StartsAndStopsInTwoSteps) {
    const Environment environment(settings());
    EXPECT_EQ(start(0), 1U);
    EXPECT_NE(getSurface(nullptr, 0), nullptr);
    EXPECT_EQ(flush(nullptr, 0, 0, 1, 1), 0); // nothing shows yet
    EXPECT_EQ(startSecond(0), 1U);
    EXPECT_EQ(flush(nullptr, 0, 0, 1, 1), 1);
    EXPECT_EQ(stopFirst(), 1U);
    EXPECT_EQ(flush(nullptr, 0, 0, 1, 1), 0);
    EXPECT_NE(getSurface(nullptr, 0), nullptr);
    EXPECT_EQ(stop(), 1U);
    EXPECT_EQ(getSurface(nullptr, 0), nullptr);
}

TEST(Lifecycle, StopsWithoutTheFirstStep) {
    const Environment environment(settings());
    start(0);
    startSecond(0);
    EXPECT_EQ(stop(), 1U);
}

TEST(Lifecycle, RefusesStepsOutOfOrder) {
    const Environment environment(settings());
    EXPECT_EQ(startSecond(0), 0U);
    EXPECT_EQ(stopFirst(), 0U);
    EXPECT_EQ(stop(), 0U);
}

TEST(Lifecycle, StartsOnceHoweverOftenItIsAsked) {
    StartedPlatform platform;
    const GVram* const surface = getSurface(nullptr, 0);
    EXPECT_EQ(start(0), 1U);
    EXPECT_EQ(startSecond(0), 1U);
    EXPECT_EQ(getSurface(nullptr, 0), surface);
    EXPECT_EQ(platform.stop(), 1U);
    EXPECT_EQ(stop(), 0U);
}

TEST(Lifecycle, StartsAgainWithNewSettings) {
    for (const char* const width : {"100", "200"}) {
        const StartedPlatform platform{{"QUARLO_WIDTH", width}};
        EXPECT_EQ(getSurface(nullptr, 0)->width, std::atoi(width));
        EXPECT_EQ(platform.pixel(*getSurface(nullptr, 0), 0, 0), 0U);
        getSurface(nullptr, 0)->pixels[0] = 1;
    }
}

TEST(Lifecycle, TakesAConfigurationFile) {
    const TemporaryFolder folder;
    folder.write("panel.conf", "QUARLO_WIDTH = 321\n");
    const Environment environment(settings());
    const std::string path = folder.path("panel.conf");
    EXPECT_EQ(start(reinterpret_cast<GWord>(path.c_str())), 1U);
    EXPECT_EQ(getSurface(nullptr, 0)->width, 321);
    EXPECT_EQ(stop(), 1U);
}

TEST(Lifecycle, FailsWithoutTheWindowThatWasAskedFor) {
    testing::internal::CaptureStderr();
    StartedPlatform platform{
        {"QUARLO_DISPLAY", "sdl"}, {"SDL_VIDEODRIVER", "x11"}, {"DISPLAY", std::nullopt}};
    EXPECT_EQ(platform.started(), 0U);
    EXPECT_EQ(flush(nullptr, 0, 0, 1, 1), 0);
    EXPECT_EQ(platform.stop(), 1U);
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.rfind("gpi: cannot open a window", 0), 0U) << said;
}

TEST(Lifecycle, DoesNotWaitForAWindowThatIsNotThere) {
    EXPECT_EQ(GPIHostWaitForClose(), 0);
    const StartedPlatform platform;
    EXPECT_EQ(GPIHostWaitForClose(), 0);
}

TEST(Platform, SaysWhatItIs) {
    const auto describe = service<GPIDescribe>(GPI_SERVICE_DESCRIBE);
    EXPECT_EQ(std::u16string_view(describe()).substr(0, 6), u"gpi 1.");
    EXPECT_EQ(describe(), describe());
}

TEST(Platform, CountsTheSurfacesThatItHandsOut) {
    const auto count = service<GPICountSurfaces>(GPI_SERVICE_COUNT_SURFACES);
    EXPECT_EQ(count(), 0);
    const StartedPlatform platform;
    ASSERT_EQ(count(), 4);
    EXPECT_NE(getSurface(nullptr, 3), nullptr);
    EXPECT_EQ(getSurface(nullptr, 4), nullptr);
}

TEST(Platform, CountsTheSignalsThatNobodyWaitedFor) {
    const auto count = service<GPICountSignals>(GPI_SERVICE_COUNT_SIGNALS);
    const auto signal = service<GPISignalEvent>(GPI_SERVICE_SIGNAL_EVENT);
    service<GPIStartEventSignal>(GPI_SERVICE_START_EVENT_SIGNAL)();
    EXPECT_EQ(count(), 0);
    signal();
    signal();
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(service<GPIWaitEvent>(GPI_SERVICE_WAIT_EVENT)(0), 1);
    EXPECT_EQ(count(), 1);
    service<GPIStartEventSignal>(GPI_SERVICE_START_EVENT_SIGNAL)();
    EXPECT_EQ(count(), 0);
}

} // namespace
