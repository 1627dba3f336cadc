// The program as it is called: exit statuses, files, standard streams.
#include "files.h"
#include "image/grf_file_bytes.h"
#include "pictures.h"
#include "png_file.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>

namespace quarlo::test {
namespace {

namespace fs = std::filesystem;

/// What a command left behind.
struct Outcome {
    int status;
    std::string output;
    std::string messages;
};

class GrfProgram : public testing::Test {
  protected:
    GrfProgram() {
        std::string name = (fs::temp_directory_path() / "quarlo-grf-XXXXXX").string();
        EXPECT_NE(mkdtemp(name.data()), nullptr);
        folder_ = name;
    }
    ~GrfProgram() override { fs::remove_all(folder_); }

    std::string path(const std::string& name) const { return (folder_ / name).string(); }

    std::string text(const std::string& name) const {
        const auto bytes = grf::readFile(path(name));
        return {bytes.begin(), bytes.end()};
    }

    /// Runs the program with arguments for a shell, in a folder of the test's own.
    Outcome run(const std::string& arguments) const {
        const std::string command = "cd '" + folder_.string() + "' && '" GRF_PROGRAM "' " +
                                    arguments + " >output 2>messages";
        const int status = std::system(command.c_str());
        EXPECT_TRUE(WIFEXITED(status)) << command;
        return {WEXITSTATUS(status), text("output"), text("messages")};
    }

    void write(const std::string& name, const std::vector<uint8_t>& bytes) const {
        grf::writeFile(path(name), bytes);
    }

  private:
    fs::path folder_;
};

TEST_F(GrfProgram, TakesAPictureThereAndBack) {
    const grf::Picture picture{3, 2, {kRed, kRed, kTransparent, kBlue, kWhite, kBlack}};
    write("in.png", grf::writePng(picture));
    for (const std::string format :
         {"--surface 8", "--surface 555", "--surface 565", "--surface 24", "--surface palette",
          "--surface 24 --pack 8"}) {
        EXPECT_EQ(run("encode " + format + " in.png image.grf").status, 0);
        EXPECT_EQ(run("check image.grf").status, 0);
        EXPECT_EQ(run("decode image.grf out.png").status, 0);
        EXPECT_EQ(grf::readPng(grf::readFile(path("out.png"))), picture) << format;
    }
}

TEST_F(GrfProgram, StandsInAPipe) {
    const grf::Picture picture{2, 1, {kRed, kWhite}};
    write("in.png", grf::writePng(picture));
    EXPECT_EQ(
        run("encode --surface 24 < in.png 2>told | '" GRF_PROGRAM "' decode - out.png").status, 0);
    EXPECT_EQ(text("told"), "-: 8 bytes of runs against 6 raw: 2 more (33 %)\n");
    EXPECT_EQ(grf::readPng(grf::readFile(path("out.png"))), picture);
}

TEST_F(GrfProgram, SaysHowManyBytesItSaved) {
    write("red.png", grf::writePng({20, 3, std::vector<grf::Color>(60, kRed)}));
    const Outcome encoded = run("encode --surface 565 red.png red.grf");
    EXPECT_EQ(encoded.output, "");
    EXPECT_EQ(encoded.messages, "red.png: 4 bytes of runs against 120 raw: 116 saved (96 %)\n");
    EXPECT_EQ(run("encode --surface 565 --quiet red.png red.grf").messages, "");
    EXPECT_EQ(run("info red.grf").output,
              "red.grf: 20 x 3, 16 bits, 5-6-5\n1 runs: 0 skip, 0 literal, 1 fill\n"
              "4 bytes of runs against 120 raw: 116 saved (96 %)\n");
}

TEST_F(GrfProgram, NamesWhatIsMalformed) {
    GrfFields bad = directFields();
    bad.stream = {0xC4, 1, 0xC5, 2, 0, 9};
    write("bad.grf", bytesOf(bad));
    write("good.grf", bytesOf(directFields()));
    const Outcome checked = run("check good.grf bad.grf");
    EXPECT_EQ(checked.status, 1);
    EXPECT_EQ(checked.output, "bad.grf: offset 34: run past the last row\n"
                              "bad.grf: offset 37: bytes behind the end of the stream\n");
    for (const std::string command : {"decode", "info", "dump"}) {
        const Outcome refused = run(command + " bad.grf");
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.messages, "quarlo-grf: bad.grf: offset 34: run past the last row\n");
    }
    EXPECT_EQ(run("check good.grf").output, "");
    EXPECT_EQ(run("check < bad.grf").status, 1);
}

TEST_F(GrfProgram, RefusesToTakeAllMemory) {
    GrfFields vast = directFields();
    vast.width = vast.height = 32767;
    write("vast.grf", bytesOf(vast));
    EXPECT_EQ(run("check vast.grf").status, 0);
    EXPECT_EQ(run("info vast.grf").status, 0);
    EXPECT_EQ(run("decode vast.grf").messages,
              "quarlo-grf: vast.grf: the image is too large: 32767 x 32767\n");
}

TEST_F(GrfProgram, DumpsATableInTheOrderOfItsFiles) {
    write("b-2.grf", bytesOf(directFields()));
    write("a.grf", bytesOf(wideFields()));
    const Outcome source = run("dump --name pictures b-2.grf a.grf");
    EXPECT_EQ(source.status, 0);
    EXPECT_NE(source.output.find("const GGrfImage pictures[] = {\n    {1, 4, 2,"),
              std::string::npos);
    EXPECT_EQ(run("dump --header --output images.h b-2.grf a.grf").output, "");
    const std::string header = text("images.h");
    EXPECT_NE(header.find("    IMAGES_B_2,\n    IMAGES_A,\n    IMAGES_COUNT\n"), std::string::npos);
}

TEST_F(GrfProgram, TakesColorsFromAPicture) {
    write("colors.png", grf::writePng({3, 1, {kBlack, kWhite, kRed}}));
    write("in.png", grf::writePng({2, 1, {{250, 10, 0}, kTransparent}}));
    EXPECT_EQ(run("encode --surface palette --colors colors.png in.png out.grf").status, 0);
    const auto file = grf::readFile(path("out.grf"));
    ASSERT_EQ(file.size(), 32U + 12 + 3);
    EXPECT_EQ(std::vector<uint8_t>(file.end() - 3, file.end()), (std::vector<uint8_t>{0x41, 2, 0}));
}

TEST_F(GrfProgram, TellsHowItIsUsed) {
    write("in.png", grf::writePng({1, 1, {kRed}}));
    for (const std::string arguments :
         {"", "paint", "encode in.png", "encode --surface 16 in.png", "encode --surface 24 a b c",
          "encode --surface 24 --pack 3 in.png", "encode --surface palette --pack 4 in.png",
          "encode --surface 24 --matte red in.png", "encode --surface 24 --matte 12345 in.png",
          "decode --surface 24", "dump --name 1st", "info --all"}) {
        const Outcome misused = run(arguments);
        EXPECT_EQ(misused.status, 2) << arguments;
        EXPECT_EQ(misused.messages.substr(0, 17), "usage: quarlo-grf") << arguments;
    }
    const Outcome asked = run("--help");
    EXPECT_EQ(asked.status, 0);
    EXPECT_EQ(asked.output, run("paint").messages);
    EXPECT_EQ(asked.messages, "");
}

TEST_F(GrfProgram, SaysWhichFileItCouldNotUse) {
    write("text.png", {'t', 'e', 'x', 't'});
    write("in.png", grf::writePng({1, 1, {kRed}}));
    EXPECT_EQ(run("encode --surface 24 none.png").messages,
              "quarlo-grf: none.png: No such file or directory\n");
    EXPECT_EQ(run("encode --surface 24 text.png").status, 1);
    EXPECT_EQ(run("encode --surface 24 in.png none/out.grf").messages,
              "quarlo-grf: none/out.grf: No such file or directory\n");
    EXPECT_EQ(run("encode --surface 24 in.png /dev/full").messages,
              "quarlo-grf: /dev/full: No space left on device\n");
    EXPECT_EQ(run("info .").messages, "quarlo-grf: .: Is a directory\n");
}

std::vector<std::string> icons() {
    std::vector<std::string> paths;
    for (const auto& entry : fs::directory_iterator(GRF_ICONS)) {
        if (entry.path().extension() == ".png") {
            paths.push_back(entry.path().string());
        }
    }
    return paths;
}

TEST_F(GrfProgram, TakesEveryIcon) {
    EXPECT_GE(icons().size(), 16U);
    for (const std::string& path : icons()) {
        const grf::Picture icon = grf::readPng(grf::readFile(path));
        EXPECT_EQ(icon.width, 32) << path;
        EXPECT_EQ(icon.height, 32) << path;
        EXPECT_EQ(run("encode --surface 565 '" + path + "' icon.grf").status, 0);
        EXPECT_EQ(run("check icon.grf").status, 0);
    }
}

TEST_F(GrfProgram, SavesOnTheIconsWhatItsDocumentSays) {
    const auto document = grf::readFile(GRF_DOCUMENT);
    const std::string words(document.begin(), document.end());
    for (const std::string surface : {"8", "555", "565", "24"}) {
        size_t runs = 0;
        size_t raw = 0;
        for (const std::string& path : icons()) {
            const std::string told =
                run("encode --surface " + surface + " --matte F8F6F0 < '" + path + "'").messages;
            size_t bytes = 0;
            size_t rawBytes = 0;
            ASSERT_EQ(std::sscanf(told.c_str(), "-: %zu bytes of runs against %zu raw", &bytes,
                                  &rawBytes),
                      2)
                << told;
            runs += bytes;
            raw += rawBytes;
        }
        std::ostringstream row;
        row << "\n| `" << surface << "` | " << raw << " | " << runs << " | " << raw - runs << " ("
            << 100 * (raw - runs) / raw << " %) |\n";
        EXPECT_NE(words.find(row.str()), std::string::npos) << row.str();
    }
}

} // namespace
} // namespace quarlo::test
