#include "nc/helper/report_reader.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

namespace gpi::nc {
namespace {

using Kind = ReportReader::Kind;

TEST(ReportReader, PutsAPictureTogether) {
    ReportReader reader;
    EXPECT_EQ(reader.read("extent 3 1 20 3000 500.5").kind, Kind::Part);
    EXPECT_EQ(reader.read("value 1 0 2 -12.5").kind, Kind::Part);
    EXPECT_EQ(reader.read("value 16 100 0 nan").kind, Kind::Part);
    EXPECT_EQ(reader.read("system 2 1").kind, Kind::Part);
    EXPECT_EQ(reader.read("text 5 0 X axis").kind, Kind::Part);
    EXPECT_EQ(reader.read("text 1 0 ").kind, Kind::Part);
    EXPECT_EQ(reader.read("show").kind, Kind::Show);
    const Picture& picture = reader.picture();
    EXPECT_EQ(picture.extent.axes, 3);
    EXPECT_EQ(picture.extent.tools, 20);
    EXPECT_EQ(picture.extent.mostFeed, 3000.0);
    EXPECT_EQ(picture.extent.mostTravel, 500.5);
    EXPECT_EQ(picture.values.at({1, 0, 2}), -12.5);
    EXPECT_EQ(picture.system.at(2), 1);
    EXPECT_EQ(picture.texts.at({5, 0}), "X axis");
    EXPECT_EQ(picture.texts.at({1, 0}), "");
}

TEST(ReportReader, TellsEvents) {
    ReportReader reader;
    const auto alarm = reader.read("alarm 300 no feed");
    EXPECT_EQ(alarm.kind, Kind::Alarm);
    EXPECT_EQ(alarm.number, 300);
    EXPECT_EQ(alarm.text, "no feed");
    const auto reply = reader.read("reply 17 -4");
    EXPECT_EQ(reply.kind, Kind::Reply);
    EXPECT_EQ(reply.number, 17);
    EXPECT_EQ(reply.result, -4);
    reader.read("extent 3 1 20 3000 500");
    const auto lost = reader.read("lost it has ended");
    EXPECT_EQ(lost.kind, Kind::Lost);
    EXPECT_EQ(lost.text, "it has ended");
    EXPECT_EQ(reader.picture().extent.axes, 0) << "what was known is forgotten";
}

TEST(ReportReader, RefusesNonsense) {
    for (const char* const line : {"",
                                   " ",
                                   "hello",
                                   "value",
                                   "value 1",
                                   "value 1 0 0",
                                   "value 1 0 0 x",
                                   "value 1 0 0 1 2",
                                   "value 1  0 0 1",
                                   "value 99999999999 0 0 1",
                                   "system 1",
                                   "system 1 1.5",
                                   "text 1",
                                   "text x 0 y",
                                   "reply 1",
                                   "reply 1 1 1",
                                   "alarm x y",
                                   "extent",
                                   "extent 0 1 1 1 1",
                                   "extent 10 1 1 1 1",
                                   "extent 3 9 1 1 1",
                                   "extent 3 1 -1 1 1",
                                   "extent 3 1 1 nan 1",
                                   "extent 3 1 1 1 -1"}) {
        ReportReader reader;
        EXPECT_EQ(reader.read(line).kind, Kind::Nonsense) << '"' << line << '"';
    }
}

TEST(ReportReader, StopsListeningToAHelperThatRaves) {
    ReportReader reader;
    int32_t number = 0;
    while (reader.read("value 16 " + std::to_string(number) + " 0 1").kind == Kind::Part) {
        ASSERT_LT(++number, 100'000);
    }
    EXPECT_GT(number, 1000);
}

TEST(ReportReader, ComesBackFromAnyLine) {
    quarlo::test::Random random(quarlo::test::testSeed());
    constexpr std::string_view kPieces[] = {"value", "system", "text",  "show", "lost", "alarm",
                                            "reply", "extent", " ",     " ",    " ",    "1",
                                            "-7",    "1e999",  "99999", "x",    "\0",   "nan"};
    ReportReader reader;
    for (int round = 0; round < 5000; ++round) {
        std::string line;
        for (int32_t left = random.between(0, 12); left > 0; --left) {
            line += random.pick(kPieces);
        }
        reader.read(line);
        EXPECT_LE(reader.picture().extent.axes, 9);
    }
}

} // namespace
} // namespace gpi::nc
