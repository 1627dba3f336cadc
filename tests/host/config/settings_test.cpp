#include "config/settings.h"

#include "support/started_platform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace gpi;
using gpi::test::Environment;
using gpi::test::TemporaryFolder;

/// Reads settings and what is said about them.
struct Read {
    explicit Read(const SettingSource& source = SettingSource::standard()) {
        testing::internal::CaptureStderr();
        settings = readSettings(source);
        said = testing::internal::GetCapturedStderr();
    }

    Settings settings;
    std::string said;
};

/// Nothing set, not even the display.
Environment::Values nothing() {
    return gpi::test::settings({{"QUARLO_DISPLAY", std::nullopt}});
}

TEST(Settings, HaveDefaults) {
    const Environment environment(nothing());
    const Read read;
    EXPECT_EQ(read.settings.display, DisplayKind::Automatic);
    EXPECT_EQ(read.settings.width, 800);
    EXPECT_EQ(read.settings.height, 600);
    EXPECT_EQ(read.settings.format, kFormat555);
    EXPECT_EQ(read.settings.scale, 1);
    EXPECT_EQ(read.settings.title, "quarlo");
    EXPECT_EQ(read.settings.png, "quarlo.png");
    EXPECT_EQ(read.settings.memoryLimit, 0);
    EXPECT_EQ(read.settings.authorities, "");
    EXPECT_EQ(read.settings.proxy, "");
    EXPECT_EQ(read.settings.connectTimeout, 10000);
    EXPECT_EQ(read.settings.idleTimeout, 30000);
    EXPECT_EQ(read.settings.redirects, 10);
    EXPECT_EQ(read.said, "");
}

TEST(Settings, ComeFromTheEnvironment) {
    auto values = nothing();
    values["QUARLO_DISPLAY"] = "png";
    values["QUARLO_WIDTH"] = "2560";
    values["QUARLO_HEIGHT"] = "1";
    values["QUARLO_FORMAT"] = "24";
    values["QUARLO_SCALE"] = "3";
    values["QUARLO_TITLE"] = "Lathe 4";
    values["QUARLO_PNG"] = "a b.png";
    values["QUARLO_MEMORY_LIMIT"] = "2147483647";
    values["QUARLO_NET_CA_FILE"] = "plant.pem";
    values["QUARLO_NET_PROXY"] = "http://gate:3128";
    values["QUARLO_NET_CONNECT_TIMEOUT"] = "1";
    values["QUARLO_NET_IDLE_TIMEOUT"] = "2147483647";
    values["QUARLO_NET_REDIRECTS"] = "50";
    const Environment environment(values);
    const Read read;
    EXPECT_EQ(read.settings.display, DisplayKind::Png);
    EXPECT_EQ(read.settings.width, 2560);
    EXPECT_EQ(read.settings.height, 1);
    EXPECT_EQ(read.settings.format, kFormat24);
    EXPECT_EQ(read.settings.scale, 3);
    EXPECT_EQ(read.settings.title, "Lathe 4");
    EXPECT_EQ(read.settings.png, "a b.png");
    EXPECT_EQ(read.settings.memoryLimit, INT32_MAX);
    EXPECT_EQ(read.settings.authorities, "plant.pem");
    EXPECT_EQ(read.settings.proxy, "http://gate:3128");
    EXPECT_EQ(read.settings.connectTimeout, 1);
    EXPECT_EQ(read.settings.idleTimeout, INT32_MAX);
    EXPECT_EQ(read.settings.redirects, 50);
    EXPECT_EQ(read.said, "");
}

TEST(Settings, KnowEveryDisplayAndFormat) {
    const Environment environment(nothing());
    const std::pair<const char*, DisplayKind> displays[] = {
        {"sdl", DisplayKind::Sdl}, {"memory", DisplayKind::Memory}, {"png", DisplayKind::Png},
        {"vnc", DisplayKind::Vnc}, {"fbdev", DisplayKind::Fbdev},   {"drm", DisplayKind::Drm}};
    for (const auto& [name, kind] : displays) {
        const Environment one{{"QUARLO_DISPLAY", name}};
        EXPECT_EQ(Read().settings.display, kind) << name;
    }
    const std::pair<const char*, PixelFormat> formats[] = {
        {"8", kFormat8}, {"555", kFormat555}, {"565", kFormat565}, {"24", kFormat24}};
    for (const auto& [name, format] : formats) {
        const Environment one{{"QUARLO_FORMAT", name}};
        EXPECT_EQ(Read().settings.format, format) << name;
    }
}

TEST(Settings, KeepViewersOnThisComputerByDefault) {
    const Environment environment(nothing());
    EXPECT_EQ(Read().settings.vncAddress, "127.0.0.1");
    EXPECT_EQ(Read().settings.vncPort, 5900);
    EXPECT_EQ(Read().settings.vncPassword, "");
    EXPECT_FALSE(Read().settings.vncViewOnly);
    const Environment remote{{"QUARLO_VNC_ADDRESS", "192.168.0.7"},
                             {"QUARLO_VNC_PORT", "65535"},
                             {"QUARLO_VNC_PASSWORD", "spindle"},
                             {"QUARLO_VNC_VIEW_ONLY", "yes"}};
    const Read read;
    EXPECT_EQ(read.settings.vncAddress, "192.168.0.7");
    EXPECT_EQ(read.settings.vncPort, 65535);
    EXPECT_EQ(read.settings.vncPassword, "spindle");
    EXPECT_TRUE(read.settings.vncViewOnly);
    EXPECT_EQ(read.said, "");
}

TEST(Settings, NameAScreen) {
    const Environment environment(nothing());
    EXPECT_EQ(Read().settings.screen, "");
    const Environment second{{"QUARLO_SCREEN", "/dev/fb1"}};
    EXPECT_EQ(Read().settings.screen, "/dev/fb1");
}

TEST(Settings, TellWhetherInputDevicesAreRead) {
    const Environment environment(nothing());
    EXPECT_TRUE(Read().settings.screenInput);
    const Environment none{{"QUARLO_SCREEN_INPUT", "no"}};
    EXPECT_FALSE(Read().settings.screenInput);
}

TEST(Settings, ChooseTheControl) {
    const Environment environment(nothing());
    EXPECT_EQ(Read().settings.control, ControlKind::Sim);
    EXPECT_EQ(Read().settings.controlHelper, "");
    const Environment sim{{"QUARLO_NC", "sim"}};
    EXPECT_EQ(Read().settings.control, ControlKind::Sim);
    const Environment linuxCnc{{"QUARLO_NC", "linuxcnc"}, {"QUARLO_NC_HELPER", "/opt/helper"}};
    const Read read;
    EXPECT_EQ(read.settings.control, ControlKind::LinuxCnc);
    EXPECT_EQ(read.settings.controlHelper, "/opt/helper");
    EXPECT_EQ(read.said, "");
}

TEST(Settings, NameAWrongValueInOneLineAndTakeTheDefault) {
    const Environment environment(nothing());
    const std::pair<const char*, const char*> wrong[] = {
        {"QUARLO_DISPLAY", "vga"},
        {"QUARLO_WIDTH", "0"},
        {"QUARLO_WIDTH", "2561"},
        {"QUARLO_WIDTH", "640x480"},
        {"QUARLO_HEIGHT", "-5"},
        {"QUARLO_HEIGHT", " 5"},
        {"QUARLO_FORMAT", "32"},
        {"QUARLO_FORMAT", "16"},
        {"QUARLO_NC", "lathe"},
        {"QUARLO_SCALE", "9"},
        {"QUARLO_SCALE", "1.5"},
        {"QUARLO_MEMORY_LIMIT", "-1"},
        {"QUARLO_MEMORY_LIMIT", "1e9"},
        {"QUARLO_MEMORY_LIMIT", "99999999999999999999"},
        {"QUARLO_VNC_PORT", "65536"},
        {"QUARLO_VNC_VIEW_ONLY", "1"},
        {"QUARLO_NET_CONNECT_TIMEOUT", "0"},
        {"QUARLO_NET_IDLE_TIMEOUT", "30s"},
        {"QUARLO_NET_REDIRECTS", "51"},
        {"QUARLO_NET_REDIRECTS", "-1"},
    };
    for (const auto& [name, value] : wrong) {
        const Environment one{{name, value}};
        const Read read;
        EXPECT_EQ(std::count(read.said.begin(), read.said.end(), '\n'), 1) << read.said;
        EXPECT_NE(read.said.find(name), std::string::npos) << read.said;
        EXPECT_NE(read.said.find(value), std::string::npos) << read.said;
        EXPECT_EQ(read.settings.display, DisplayKind::Automatic);
        EXPECT_EQ(read.settings.width, 800);
        EXPECT_EQ(read.settings.height, 600);
        EXPECT_EQ(read.settings.format, kFormat555);
        EXPECT_EQ(read.settings.scale, 1);
        EXPECT_EQ(read.settings.memoryLimit, 0);
        EXPECT_EQ(read.settings.connectTimeout, 10000);
        EXPECT_EQ(read.settings.idleTimeout, 30000);
        EXPECT_EQ(read.settings.redirects, 10);
        EXPECT_EQ(read.settings.vncPort, 5900);
        EXPECT_FALSE(read.settings.vncViewOnly);
    }
}

TEST(Settings, TakeAnEmptyVariableForNone) {
    auto values = nothing();
    values["QUARLO_WIDTH"] = "";
    const Environment environment(values);
    const Read read;
    EXPECT_EQ(read.settings.width, 800);
    EXPECT_EQ(read.said, "");
}

TEST(Settings, ComeFromAFileUnlessAVariableSaysOtherwise) {
    const TemporaryFolder folder;
    folder.write("panel.conf", "# the press\n; in hall 2\n\nQUARLO_WIDTH = 640\n"
                               "QUARLO_HEIGHT=480\nQUARLO_TITLE = Press \xC3\xBC\n");
    auto values = nothing();
    values["QUARLO_HEIGHT"] = "240";
    const Environment environment(values);
    const Read read(SettingSource(folder.path("panel.conf")));
    EXPECT_EQ(read.settings.width, 640);
    EXPECT_EQ(read.settings.height, 240);
    EXPECT_EQ(read.settings.title, "Press \xC3\xBC");
    EXPECT_EQ(read.said, "");
}

TEST(Settings, NameWhatMeansNothingInTheFile) {
    const TemporaryFolder folder;
    folder.write("panel.conf", "QUARLO_WIDHT = 640\n");
    const Environment environment(nothing());
    const Read read(SettingSource(folder.path("panel.conf")));
    EXPECT_EQ(read.settings.width, 800);
    EXPECT_NE(read.said.find("QUARLO_WIDHT"), std::string::npos) << read.said;
}

TEST(Settings, FindTheFile) {
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder.path("x/quarlo"));
    std::filesystem::create_directories(folder.path("h/.config/quarlo"));
    folder.write("named.conf", "QUARLO_WIDTH = 100\n");
    folder.write("x/quarlo/host.conf", "QUARLO_WIDTH = 200\n");
    folder.write("h/.config/quarlo/host.conf", "QUARLO_WIDTH = 300\n");
    auto values = nothing();
    values["HOME"] = folder.path("h");
    values["XDG_CONFIG_HOME"] = std::nullopt;
    const Environment home(values);
    EXPECT_EQ(Read().settings.width, 300);
    const Environment standard{{"XDG_CONFIG_HOME", folder.path("x")}};
    EXPECT_EQ(Read().settings.width, 200);
    const Environment named{{"QUARLO_CONFIG", folder.path("named.conf")}};
    EXPECT_EQ(Read().settings.width, 100);
}

TEST(Settings, SayThatANamedFileCannotBeRead) {
    auto values = nothing();
    values["QUARLO_CONFIG"] = "/nonexistent/panel.conf";
    const Environment environment(values);
    testing::internal::CaptureStderr();
    const auto source = SettingSource::standard();
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said, "gpi: cannot read the configuration file /nonexistent/panel.conf\n");
    EXPECT_EQ(Read(source).settings.width, 800);
}

} // namespace
