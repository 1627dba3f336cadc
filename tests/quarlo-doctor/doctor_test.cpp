// quarlo-doctor on a sound platform, on the smallest one, and on one with each kind of fault.
#include "support/environment.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <map>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include <sys/wait.h>

namespace {

using gpi::test::Environment;
using gpi::test::TemporaryFolder;

/// A line of the report.
struct Line {
    std::string name;
    std::string state;
    std::string remark;
};

struct Report {
    int status = -1;
    std::string text;
    std::map<int, Line> lines;
};

std::map<int, Line> linesOf(const std::string& text) {
    std::map<int, Line> lines;
    std::istringstream in(text);
    for (std::string row; std::getline(in, row);) {
        std::istringstream words(row);
        int number = 0;
        Line line;
        if (words >> number >> line.name >> line.state && line.name != "services:") {
            std::getline(words >> std::ws, line.remark);
            lines[number] = line;
        }
    }
    return lines;
}

/// Runs the tool in a folder of its own.
Report examine(const std::string& arguments) {
    const TemporaryFolder folder;
    const std::string command = "cd " + folder.path() + " && " DOCTOR " " + arguments + " 2>&1";
    Report report;
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::array<char, 4096> part{};
    while (std::fgets(part.data(), part.size(), pipe) != nullptr) {
        report.text += part.data();
    }
    const int status = pclose(pipe);
    report.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    report.lines = linesOf(report.text);
    return report;
}

/// Settings under which nothing of the user's counts.
Environment quietHost() {
    return {{"QUARLO_CONFIG", std::nullopt}, {"XDG_CONFIG_HOME", "/nonexistent"},
            {"QUARLO_DISPLAY", "memory"},    {"QUARLO_FORMAT", std::nullopt},
            {"QUARLO_NC", std::nullopt},     {"QUARLO_MEMORY_LIMIT", std::nullopt}};
}

TEST(Doctor, FindsTheHostPlatformFitInEveryFormat) {
    for (const char* const format : {"8", "555", "565", "24"}) {
        const Environment quiet = quietHost();
        const Environment environment{{"QUARLO_FORMAT", format}};
        const Report report = examine(HOST_PLATFORM);
        EXPECT_EQ(report.status, 0) << report.text;
        EXPECT_EQ(report.lines.size(), 145U);
        for (const auto& [number, line] : report.lines) {
            EXPECT_EQ(line.state, "passed") << format << ": " << number << ' ' << line.name << ' '
                                            << line.state << ": " << line.remark;
        }
    }
}

TEST(Doctor, ExaminesTheHostPlatformByDefault) {
    const Environment quiet = quietHost();
#ifdef __SANITIZE_ADDRESS__
    // The sanitizer opens libraries in the tool's place and does not look where that would.
    const Environment path{{"LD_LIBRARY_PATH", HOST_FOLDER}};
#endif
    EXPECT_EQ(examine("").text, examine(HOST_PLATFORM).text);
}

TEST(Doctor, FindsTheMinimalPlatformFit) {
    const Report report = examine(MINIMAL_PLATFORM);
    EXPECT_EQ(report.status, 0) << report.text;
    for (const auto& [number, line] : report.lines) {
        const bool offered = number == 1 || number == 2 || number == 3 || number == 5 ||
                             number == 6 || number == 9 || number == 41 || number == 42;
        EXPECT_EQ(line.state, offered ? "passed" : "missing") << number;
    }
    EXPECT_NE(report.text.find("145 services: 8 passed, 0 not probed, 0 failed, 137 missing"),
              std::string::npos);
}

TEST(Doctor, ExaminesSomeServicesAlone) {
    const Report report = examine(MINIMAL_PLATFORM " 41 8 3");
    EXPECT_EQ(report.status, 0);
    EXPECT_EQ(report.lines.size(), 3U) << report.text;
    EXPECT_NE(report.text.find("3 services: 2 passed, 0 not probed, 0 failed, 1 missing"),
              std::string::npos);
}

TEST(Doctor, SaysWhatAMissingServiceCosts) {
    const Report report = examine(MINIMAL_PLATFORM);
    EXPECT_EQ(report.lines.at(8).remark,
              "without it GDBitBlt() copies nothing, between memory surfaces neither");
    EXPECT_EQ(report.lines.at(28).remark,
              "without it GEGetSystemTime() and GESetTimer() give 0; GECheckTimer() does nothing");
}

TEST(Doctor, RefusesWhatIsNoPlatform) {
    const Report missing = examine("./no-such-platform.so");
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.text.rfind("quarlo-doctor: ./no-such-platform.so: ", 0), 0U) << missing.text;
    const Report other = examine("libc.so.6");
    EXPECT_EQ(other.status, 2);
    EXPECT_EQ(other.text, "quarlo-doctor: libc.so.6 has no entry point GPIGetService\n");
}

TEST(Doctor, ExplainsItsUse) {
    for (const char* const arguments :
         {"--what", "a b", "a 0", "--limit", "--limit 0", "--limit 1x"}) {
        const Report report = examine(arguments);
        EXPECT_EQ(report.status, 3) << arguments;
        EXPECT_EQ(report.text.rfind("usage: quarlo-doctor", 0), 0U) << report.text;
    }
    const Report asked = examine("--help");
    EXPECT_EQ(asked.status, 0);
    EXPECT_EQ(asked.text, examine("--what").text);
}

/// A fault of the broken platform, and what is to be said of it.
struct Fault {
    const char* name;
    int number;
    const char* state;
    const char* remark;
    int status;
};

std::ostream& operator<<(std::ostream& out, const Fault& fault) {
    return out << fault.name;
}

class DoctorOnAFault : public testing::TestWithParam<Fault> {};

TEST_P(DoctorOnAFault, NamesIt) {
    const Fault& fault = GetParam();
    const Environment quiet = quietHost();
    const Environment environment{{"BROKEN_OVER", HOST_PLATFORM}, {"BROKEN_FAULT", fault.name}};
    // Only what never returns is not waited for: anything may take seconds under emulation.
    const std::string limit = std::string_view(fault.name) == "hangs" ? "1" : "60";
    const Report report =
        examine("--limit " + limit + " " BROKEN_PLATFORM " " + std::to_string(fault.number));
    EXPECT_EQ(report.status, fault.status) << report.text;
    ASSERT_EQ(report.lines.size(), 1U) << report.text;
    ASSERT_EQ(report.lines.count(fault.number), 1U) << report.text;
    EXPECT_EQ(report.lines.at(fault.number).state, fault.state);
    EXPECT_EQ(report.lines.at(fault.number).remark, fault.remark);
}

constexpr const char* kOtherPixels = "draws other pixels than it was told";

INSTANTIATE_TEST_SUITE_P(
    Each, DoctorOnAFault,
    testing::Values(
        Fault{"no-start", 12, "FAILED", "does not start the platform", 1},
        Fault{"no-surface", 3, "FAILED", "has no surface 0", 1},
        Fault{"other-id", 3, "FAILED", "calls surface 0 by another number", 1},
        Fault{"huge-extent", 3, "FAILED", "has a surface of an extent outside 1 to 2560", 1},
        Fault{"odd-format", 3, "FAILED", "has a surface of other than 8, 16 or 24 bits a pixel", 1},
        Fault{"short-rows", 3, "FAILED", "has a surface whose rows overlap", 1},
        Fault{"equal-masks", 3, "FAILED", "has a surface without a palette or three masks apart",
              1},
        Fault{"no-drawable", 3, "FAILED",
              "has a surface whose drawable rectangle is missing or reaches outside", 1},
        Fault{"neighbour", 5, "FAILED", kOtherPixels, 1},
        Fault{"copies-always", 5, "FAILED", "combines wrongly in drawing mode 1", 1},
        Fault{"one-more", 6, "FAILED", "draws runs of no pixels", 1},
        Fault{"shows-nothing", 9, "FAILED", "does not show the display", 1},
        Fault{"unaligned", 41, "FAILED", "gives blocks that are not aligned for any type", 1},
        Fault{"one-block", 41, "FAILED", "does not zero a block that is to be", 1},
        Fault{"empty-blocks", 41, "FAILED", "gives blocks for a size of 0 or less", 1},
        Fault{"frees-nothing", 42, "FAILED", "refuses to free null", 1},
        Fault{"stands-still", 28, "FAILED", "stands still", 1},
        Fault{"backwards", 28, "FAILED", "runs backwards", 1},
        Fault{"other-unit", 28, "FAILED", "does not count milliseconds", 1},
        Fault{"locks-once", 34, "FAILED", "does not let a thread lock twice", 1},
        Fault{"hangs", 33, "FAILED", "does not return within 1 s", 1},
        Fault{"never-waits", 33, "FAILED", "does not wait", 1},
        Fault{"always-signalled", 33, "FAILED", "finds a signal that was not given", 1},
        Fault{"counts-nothing", 36, "FAILED", "does not count characters", 1},
        Fault{"ends", 61, "FAILED", "ends the process with status 3", 1},
        Fault{"no-font", 13, "FAILED", "does not load the font of the error message", 1},
        Fault{"no-glyph", 20, "FAILED", "has no letter A", 1},
        Fault{"blank-glyph", 20, "FAILED", "has a letter A that is blank", 1},
        Fault{"no-bitmap", 20, "FAILED", "has a letter A without a bitmap", 1},
        Fault{"no-step", 20, "FAILED", "takes another number of units than one for the letter A",
              1},
        Fault{"opens-anything", 48, "FAILED", "opens a file that there is not", 1},
        Fault{"no-fallback", 53, "FAILED", "does not give the fallback of a missing key", 1},
        Fault{"knows-everything", 206, "FAILED", "knows what there is not", 1},
        Fault{"no-span", 6, "MISSING",
              "without it there level lines, gradations downwards and runs of images are not "
              "drawn; without 68 nothing solid is",
              2},
        Fault{"no-flush", 9, "MISSING", "without it GDFlushScreen() gives 0, and nothing shows", 2},
        Fault{"no-palette", 10, "missing", "without it GDSetPalette() gives 0", 0},
        Fault{"no-palette", 11, "there", "cannot be probed without 10", 0},
        Fault{"no-signal", 33, "there", "cannot be probed without 31", 0}),
    [](const auto& fault) {
        std::string name = fault.param.name;
        for (char& letter : name) {
            letter = letter == '-' ? '_' : letter;
        }
        return name + "_" + std::to_string(fault.param.number);
    });

TEST(Doctor, NamesAServiceThatCrashes) {
    const Environment quiet = quietHost();
    const Environment environment{{"BROKEN_OVER", HOST_PLATFORM}, {"BROKEN_FAULT", "crashes"}};
    const Report report = examine("--limit 60 " BROKEN_PLATFORM " 37");
    EXPECT_EQ(report.status, 1) << report.text;
    EXPECT_EQ(report.lines.at(37).state, "FAILED");
    // A sanitizer turns the signal into a report and an exit status.
    const std::string& remark = report.lines.at(37).remark;
    EXPECT_TRUE(remark == "crashes: Segmentation fault" ||
                remark == "ends the process with status 1")
        << remark;
}

TEST(Doctor, FindsNothingWrongWithoutAFault) {
    const Environment quiet = quietHost();
    const Environment environment{{"BROKEN_OVER", HOST_PLATFORM}, {"BROKEN_FAULT", std::nullopt}};
    const Report report = examine(BROKEN_PLATFORM);
    EXPECT_EQ(report.text, examine(HOST_PLATFORM).text);
    EXPECT_EQ(report.status, 0);
}

} // namespace
