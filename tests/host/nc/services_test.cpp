// Services 200 to 206 as a panel has them, on the control that runs by default.
#include "panel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace gpi::test;
using namespace gpi::nc::test;

void makeReady() {
    EXPECT_EQ(setSystem(G_NC_SYSTEM_POWER, 1), 1);
    EXPECT_EQ(setSystem(G_NC_SYSTEM_COMMAND, G_NC_COMMAND_HOME), 1);
    EXPECT_TRUE(reaches(G_NC_STATE_IDLE));
    EXPECT_EQ(setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_AUTO), 1);
}

/// A folder of programs and a platform that finds them.
struct Shop {
    Shop() {
        folder.write("part.nc", "G0 X1\nG1 X5 F6000 (\xC3\xA4)\nM30\n;\xF0\x9F\x94\xA9\n;\xFF\n");
        std::filesystem::create_directory(folder.path("jobs"));
        folder.write("jobs/second.nc", "M30\n");
    }
    TemporaryFolder folder;
    StartedPlatform platform{{"QUARLO_FILES", folder.path()}};
};

TEST(NcServices, AreOfflineBeforeTheStart) {
    double number = 0.0;
    int32_t whole = 0;
    char16_t buffer[8];
    EXPECT_EQ(setValue(1, G_NC_MACRO, 100, 0, &number), G_NC_OFFLINE);
    EXPECT_EQ(getValue(1, G_NC_MACRO, 100, 0, &number), G_NC_OFFLINE);
    EXPECT_EQ(setString(1, G_NC_PROGRAM_NAME, 0, u"part.nc"), G_NC_OFFLINE);
    EXPECT_EQ(getString(1, G_NC_PROGRAM_NAME, 0, buffer, 8), G_NC_OFFLINE);
    EXPECT_EQ(isUnset(1, 100), G_NC_OFFLINE);
    EXPECT_EQ(setSystem(G_NC_SYSTEM_POWER, 1), G_NC_OFFLINE);
    EXPECT_EQ(getSystem(G_NC_SYSTEM_POWER, &whole), G_NC_OFFLINE);
}

TEST(NcServices, RefuseNull) {
    const StartedPlatform platform;
    char16_t buffer[8];
    EXPECT_EQ(setValue(1, G_NC_MACRO, 100, 0, nullptr), G_NC_BUFFER);
    EXPECT_EQ(getValue(1, G_NC_MACRO, 100, 0, nullptr), G_NC_BUFFER);
    EXPECT_EQ(setString(1, G_NC_PROGRAM_NAME, 0, nullptr), G_NC_BUFFER);
    EXPECT_EQ(getString(1, G_NC_PROGRAM_NAME, 0, nullptr, 8), G_NC_BUFFER);
    EXPECT_EQ(getString(1, G_NC_PROGRAM_NAME, 0, buffer, 0), G_NC_BUFFER);
    EXPECT_EQ(getString(1, G_NC_PROGRAM_NAME, 0, buffer, INT32_MIN), G_NC_BUFFER);
    EXPECT_EQ(getSystem(G_NC_SYSTEM_POWER, nullptr), G_NC_BUFFER);
}

TEST(NcServices, RefuseWhatIsNotInTheAddressSpace) {
    const StartedPlatform platform;
    double number = 7.0;
    int32_t whole = 7;
    char16_t buffer[8] = u"as is";
    EXPECT_EQ(getValue(2, G_NC_MACRO, 100, 0, &number), G_NC_UNKNOWN);
    EXPECT_EQ(getValue(1, 99, 0, 0, &number), G_NC_UNKNOWN);
    EXPECT_EQ(setValue(1, G_NC_MACHINE_POSITION, 0, 0, &number), G_NC_READ_ONLY);
    number = 201.0;
    EXPECT_EQ(setValue(1, G_NC_OVERRIDE, 0, 0, &number), G_NC_RANGE);
    EXPECT_EQ(number, 201.0);
    EXPECT_EQ(getString(1, 99, 0, buffer, 8), G_NC_UNKNOWN);
    EXPECT_EQ(buffer[0], u'a');
    EXPECT_EQ(setString(1, G_NC_ALARM_TEXT, 0, u"x"), G_NC_READ_ONLY);
    EXPECT_EQ(isUnset(1, 0), G_NC_UNKNOWN);
    EXPECT_EQ(isUnset(0, 100), G_NC_UNKNOWN);
    EXPECT_EQ(getSystem(99, &whole), G_NC_UNKNOWN);
    EXPECT_EQ(whole, 7);
    EXPECT_EQ(setSystem(G_NC_SYSTEM_STATE, 1), G_NC_READ_ONLY);
    EXPECT_EQ(setSystem(G_NC_SYSTEM_MODE, 3), G_NC_RANGE);
}

TEST(NcServices, TellUnsetVariablesFromSetOnes) {
    const StartedPlatform platform;
    EXPECT_EQ(isUnset(1, 100), 1);
    EXPECT_TRUE(std::isnan(value(G_NC_MACRO, 100)));
    double number = 0.0;
    EXPECT_EQ(setValue(1, G_NC_MACRO, 100, 0, &number), 1);
    EXPECT_EQ(isUnset(1, 100), 0);
    EXPECT_EQ(value(G_NC_MACRO, 100), 0.0);
    number = std::nan("");
    EXPECT_EQ(setValue(1, G_NC_MACRO, 100, 0, &number), 1);
    EXPECT_EQ(isUnset(1, 100), 1);
}

TEST(NcServices, RunAProgramInRealTime) {
    const Shop shop;
    makeReady();
    EXPECT_EQ(setString(1, G_NC_PROGRAM_NAME, 0, u"C:\\part.nc"), 1);
    EXPECT_EQ(text(G_NC_PROGRAM_NAME), u"C:\\part.nc");
    EXPECT_EQ(system(G_NC_SYSTEM_LINES), 5);
    EXPECT_EQ(text(G_NC_PROGRAM_LINE, 2), u"G1 X5 F6000 (\u00E4)");
    EXPECT_EQ(setSystem(G_NC_SYSTEM_COMMAND, G_NC_COMMAND_START), 1);
    EXPECT_TRUE(reaches(G_NC_STATE_IDLE));
    EXPECT_EQ(value(G_NC_MACHINE_POSITION, 0, 0), 5.0);
}

TEST(NcServices, FindProgramsBelowTheFileRootOnly) {
    const Shop shop;
    EXPECT_EQ(setString(1, G_NC_PROGRAM_NAME, 0, u"/jobs/second.nc"), 1);
    std::filesystem::create_symlink("/etc/passwd", shop.folder.path("link.nc"));
    for (const char16_t* const name : {u"", u"none.nc", u"jobs", u"../part.nc", u"link.nc",
                                       u"/etc/passwd", u"jobs/../../part.nc"}) {
        EXPECT_EQ(setString(1, G_NC_PROGRAM_NAME, 0, name), G_NC_RANGE);
    }
    const std::u16string endless(100'000, u'x');
    EXPECT_EQ(setString(1, G_NC_PROGRAM_NAME, 0, endless.c_str()), G_NC_RANGE);
    EXPECT_EQ(text(G_NC_PROGRAM_NAME), u"/jobs/second.nc") << "the last one stays";
}

TEST(NcServices, RefuseProgramsThatAreTooLarge) {
    const Shop shop;
    std::filesystem::resize_file(shop.folder.path("part.nc"), (64 << 20) + 1);
    EXPECT_EQ(setString(1, G_NC_PROGRAM_NAME, 0, u"part.nc"), G_NC_RANGE);
}

TEST(NcServices, TakeOneBlockByHand) {
    const StartedPlatform platform;
    makeReady();
    setSystem(G_NC_SYSTEM_MODE, G_NC_MODE_MDI);
    for (const std::u16string& block :
         {std::u16string(), std::u16string(u"G0 X1\nG0 X2"), std::u16string(u"G0\x01X1"),
          std::u16string(1, char16_t{0xD800}), std::u16string(GPI_NC_LONGEST_BLOCK + 1, u' ')}) {
        EXPECT_EQ(setString(1, G_NC_MANUAL_BLOCK, 0, block.c_str()), G_NC_RANGE);
    }
    std::u16string longest = u"G0 X1\t";
    longest.resize(GPI_NC_LONGEST_BLOCK, u' ');
    EXPECT_EQ(setString(1, G_NC_MANUAL_BLOCK, 0, longest.c_str()), 1);
    EXPECT_TRUE(reaches(G_NC_STATE_IDLE));
    EXPECT_EQ(value(G_NC_MACHINE_POSITION, 0, 0), 1.0);
    EXPECT_EQ(setString(1, G_NC_MANUAL_BLOCK, 0, u"G0 X\u00E4"), G_NC_REFUSED);
    EXPECT_EQ(text(G_NC_ALARM_TEXT), u"X without a number");
}

TEST(NcServices, CutTextsToTheBuffer) {
    const Shop shop;
    setString(1, G_NC_PROGRAM_NAME, 0, u"part.nc");
    EXPECT_EQ(text(G_NC_PROGRAM_LINE, 5), u";\uFFFD") << "what is no character";
    char16_t buffer[8] = u"#######";
    EXPECT_EQ(getString(1, G_NC_CONTROL_NAME, 0, buffer, 5), 1);
    EXPECT_EQ(std::u16string(buffer), u"quar");
    EXPECT_EQ(buffer[5], u'#');
    EXPECT_EQ(getString(1, G_NC_CONTROL_NAME, 0, buffer, 1), 1);
    EXPECT_EQ(buffer[0], u'\0');
    EXPECT_EQ(getString(1, G_NC_PROGRAM_LINE, 4, buffer, 4), 1);
    EXPECT_EQ(std::u16string(buffer), u";\U0001F529");
    EXPECT_EQ(getString(1, G_NC_PROGRAM_LINE, 4, buffer, 3), 1);
    EXPECT_EQ(std::u16string(buffer), u";") << "no half of a pair";
}

TEST(NcServices, AnswerSeveralThreadsAtOnce) {
    const Shop shop;
    makeReady();
    setString(1, G_NC_PROGRAM_NAME, 0, u"part.nc");
    std::vector<std::thread> panels;
    for (int panel = 0; panel < 4; ++panel) {
        panels.emplace_back([panel] {
            for (int round = 0; round < 500; ++round) {
                double number = round % 100;
                setValue(1, G_NC_MACRO, 100 + panel, 0, &number);
                EXPECT_EQ(value(G_NC_MACRO, 100 + panel), number);
                setValue(1, G_NC_OVERRIDE, 0, 0, &number);
                setSystem(G_NC_SYSTEM_COMMAND, round % 7);
                value(G_NC_MACHINE_POSITION, 0, panel % 3);
                text(G_NC_PROGRAM_LINE);
                setString(1, G_NC_PROGRAM_NAME, 0, u"jobs/second.nc");
            }
        });
    }
    for (std::thread& panel : panels) {
        panel.join();
    }
    setSystem(G_NC_SYSTEM_COMMAND, G_NC_COMMAND_STOP);
    EXPECT_TRUE(reaches(G_NC_STATE_IDLE));
}

TEST(NcServices, StartAnewWithThePlatform) {
    {
        const StartedPlatform platform;
        makeReady();
        const double number = 1.0;
        setValue(1, G_NC_MACRO, 500, 0, &number);
    }
    const StartedPlatform platform;
    EXPECT_EQ(system(G_NC_SYSTEM_STATE), G_NC_STATE_OFF);
    EXPECT_EQ(isUnset(1, 500), 1);
}

} // namespace
