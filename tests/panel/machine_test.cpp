// The panel and its machine.
#include "panel_bench.h"

#include "host/nc/eventually.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace panel::test {
namespace {

using gpi::nc::test::eventually;

TEST(Machine, IsMadeReadyByTheKeysOfTheStartPage) {
    Bench bench;
    EXPECT_FALSE(bench.machine().power);
    bench.run(kMakeReady);
    EXPECT_TRUE(bench.machine().power);
    EXPECT_TRUE(bench.machine().homed);
    EXPECT_EQ(bench.machine().state, G_NC_STATE_IDLE);
}

TEST(Machine, JogsAsLongAsTheKeyIsHeld) {
    Bench bench;
    bench.run(std::string(kMakeReady) + "down PadAdd\nwait 1000");
    EXPECT_EQ(bench.machine().state, G_NC_STATE_RUNNING);
    EXPECT_GT(bench.machine().work[kX], 25.0);
    bench.run("up PadAdd\nwait 1000");
    EXPECT_EQ(bench.machine().state, G_NC_STATE_IDLE);
    EXPECT_LT(bench.machine().work[kX], 35.0);
}

TEST(Machine, IsLookedAtAsOftenAsItIsAskedFor) {
    for (const uint32_t rate : {5U, 20U, 50U, 100U}) {
        Bench bench({}, 0, nullptr, rate);
        bench.run(std::string(kMakeReady) + "down PadAdd\nwait 2500");
        ASSERT_EQ(bench.machine().state, G_NC_STATE_RUNNING);
        EXPECT_EQ(bench.context().counters[Counters::EventsOfSecond],
                  static_cast<int32_t>(rate) + 1)
            << "and the second itself";
    }
}

TEST(Machine, JogsByStepsOfTheChosenAxis) {
    Bench bench;
    bench.run(std::string(kMakeReady) + "key X\nkey J\nkey PadSubtract\nwait 1000");
    EXPECT_NEAR(bench.machine().work[kY], -1.0, 1e-9);
    EXPECT_EQ(bench.machine().work[kX], 0.0);
}

TEST(Machine, TakesOverridesInSteps) {
    Bench bench;
    bench.run("key =\nkey =\nkey [\nwait 300");
    EXPECT_EQ(bench.machine().overrides[0], 120.0);
    EXPECT_EQ(bench.machine().overrides[2], 90.0);
}

TEST(Machine, StopsInAnEmergencyAndIsReleasedByPower) {
    Bench bench;
    bench.run(std::string(kMakeReady) + "key Pause\nwait 300");
    EXPECT_TRUE(bench.machine().emergency);
    EXPECT_FALSE(bench.machine().power);
    bench.run("key P\nwait 300");
    EXPECT_FALSE(bench.machine().emergency);
    EXPECT_TRUE(bench.machine().power);
}

TEST(Machine, StopsInAnEmergencyWhileABlockIsTyped) {
    Bench bench;
    bench.run(std::string(kMakeReady) +
              "key F10\nkey F5\ntype G1 S2\ndown Shift\ntype S\nup Shift");
    EXPECT_EQ(bench.machine().state, G_NC_STATE_IDLE) << "letters are no commands there";
    EXPECT_EQ(bench.context().message, nullptr);
    bench.run("key Pause\nwait 300");
    EXPECT_TRUE(bench.machine().emergency);
    bench.run("key Esc");
    EXPECT_EQ(std::u16string_view(bench.panel().screen().title()), u"Start");
}

TEST(Machine, SaysWhyItDoesNotObey) {
    Bench bench;
    bench.run("key S\nwait 300");
    EXPECT_EQ(std::u16string_view(bench.context().message), u"RefusedMode");
    EXPECT_TRUE(bench.context().messageIsFault);
    bench.run("key P\nwait 300");
    EXPECT_EQ(bench.context().message, nullptr);
}

/// A control that goes away when it is told to stop, and comes back once there is a file.
constexpr const char* kHelper = R"(
hello() {
    echo "extent 3 1 24 15000 800"
    echo "system 1 0"
    echo "system 2 1"
    echo "value 2 0 0 12.5"
    echo show
}
hello
while read -r request what rest; do
    echo "reply $request 1"
    if [ "$what $rest" = "system 3 5" ]; then
        echo "lost as it was told"
        while [ ! -e "$folder/back" ]; do sleep 0.01; done
        hello
    fi
done
)";

TEST(Machine, ThatIsLostIsShownAndFoundAgain) {
    const TemporaryFolder folder;
    folder.write("helper", "#!/bin/sh\nfolder=" + folder.path() + "\n" + kHelper);
    std::filesystem::permissions(folder.path("helper"), std::filesystem::perms::owner_all);
    Bench bench({{"QUARLO_NC", "linuxcnc"}, {"QUARLO_NC_HELPER", folder.path("helper")}});
    const auto sees = [&bench](bool online) {
        bench.run("wait 200");
        return bench.machine().online == online;
    };
    ASSERT_TRUE(eventually([&] { return sees(true); }));
    EXPECT_EQ(bench.machine().work[kX], 12.5);
    bench.run("key R");
    ASSERT_TRUE(eventually([&] { return sees(false); }));
    EXPECT_EQ(bench.machine().work[kX], 12.5) << "what was known last";
    bench.run("key S\nwait 200");
    EXPECT_EQ(std::u16string_view(bench.context().message), u"RefusedOffline");
    folder.write("back", "");
    ASSERT_TRUE(eventually([&] { return sees(true); }));
}

TEST(OrderQueue, TellsTheMainLoopFromItsThread) {
    const Bench bench;
    OrderQueue orders(false);
    orders.give({setSystem(G_NC_SYSTEM_POWER, 1)});
    orders.give({setSystem(G_NC_SYSTEM_STATE, 1), setSystem(G_NC_SYSTEM_POWER, 0)});
    GEventMsg event{};
    constexpr int32_t kLong = 10'000; // milliseconds
    ASSERT_EQ(GEGetEvent(&event, kLong), 1);
    EXPECT_EQ(event.type, static_cast<uint16_t>(EventType::OrdersDone));
    EXPECT_EQ(static_cast<int32_t>(event.param1), 1);
    ASSERT_EQ(GEGetEvent(&event, kLong), 1);
    EXPECT_EQ(static_cast<int32_t>(event.param1), G_NC_READ_ONLY);
    int32_t power = 0;
    GNCDataGetSystemVal(G_NC_SYSTEM_POWER, &power);
    EXPECT_EQ(power, 1) << "nothing is given after what was refused";
}

TEST(OrderQueue, TakesKeysThatComeFasterThanTheMachine) {
    const Bench bench;
    {
        OrderQueue orders(false);
        for (int i = 0; i < 3; ++i) {
            orders.give({stepOverride(0, true), turnOver(G_NC_SYSTEM_SINGLE_BLOCK)});
        }
        GEventMsg event{};
        for (int i = 0; i < 3; ++i) {
            ASSERT_EQ(GEGetEvent(&event, 10'000), 1);
            EXPECT_EQ(static_cast<int32_t>(event.param1), 1);
        }
    }
    EXPECT_EQ(readValue(G_NC_OVERRIDE, 0, 0), 130.0);
    int32_t on = 0;
    GNCDataGetSystemVal(G_NC_SYSTEM_SINGLE_BLOCK, &on);
    EXPECT_EQ(on, 1);
}

} // namespace
} // namespace panel::test
