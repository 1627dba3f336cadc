// Programs of servers: listed beside the panel's own, copied to it, opened.
#include "panel_bench.h"
#include "panel_operator.h"

#include "host/nc/eventually.h"
#include "host/net/web_server.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace panel::test {
namespace {

using gpi::test::ListeningPort;
using gpi::test::WebServer;

constexpr const char* kOpenList = "key F4\nkey F5\n";

std::string contentsOf(const std::string& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A panel with programs of its own and those of a data server.
class Stores : public testing::Test {
  protected:
    Stores() {
        own.write("own.nc", "G0 X1\n");
        server.write("programs.txt", "part.nc\r\nother.ngc\n");
        server.write("part.nc", "G0 X2\nM30\n");
        server.write("other.ngc", "G0 X3\n");
    }

    Environment::Values settings() const {
        return {{"QUARLO_FILES", own.path()},
                {"QUARLO_DATA_SERVER", server.path()},
                {"QUARLO_USER_PROFILES", profiles.path()}};
    }

    TemporaryFolder own;
    TemporaryFolder server;
    TemporaryFolder profiles;
};

TEST_F(Stores, CopyAProgramOfTheDataServerAndOpenIt) {
    Bench bench(settings());
    bench.run(std::string(kOpenList) + "key Down\nkey Enter\nwait 300");
    EXPECT_EQ(bench.machine().program, u"server_part.nc");
    EXPECT_EQ(contentsOf(own.path("server_part.nc")), "G0 X2\nM30\n");
    EXPECT_EQ(bench.context().program.line(1), u"G0 X2");
    EXPECT_FALSE(std::filesystem::exists(own.path("server_part.nc.part")));
    EXPECT_EQ(bench.context().message, nullptr);
}

TEST_F(Stores, ReadAProgramAnewThatHasChangedOnTheServer) {
    Bench bench(settings());
    bench.run(std::string(kOpenList) + "key Down\nkey Enter\nwait 300");
    server.write("part.nc", "G0 X7\nM30\n");
    bench.run("key F5\nkey End\nkey Up\nkey Enter\nwait 300");
    EXPECT_EQ(bench.machine().program, u"server_part.nc");
    EXPECT_EQ(bench.context().program.line(1), u"G0 X7");
}

TEST_F(Stores, TellThatAProgramIsNotThere) {
    Bench bench(settings());
    std::filesystem::remove(server.path("other.ngc"));
    bench.run(std::string(kOpenList) + "key End\nkey Enter\nwait 300");
    EXPECT_EQ(std::u16string_view(bench.context().message), u"FetchFailed");
    EXPECT_EQ(bench.machine().program, u"");
    EXPECT_FALSE(std::filesystem::exists(own.path("server_other.ngc")));
}

TEST_F(Stores, OfferNothingButPrograms) {
    server.write("programs.txt", "../part.nc\n/part.nc\npart.txt\n\na\\b.nc\npart.nc\n");
    const Bench bench(settings());
    ProgramStore store(true, {});
    store.list();
    const std::vector<StoredProgram> expected{{Store::DataServer, u"part.nc"}};
    EXPECT_EQ(store.listed(), expected);
}

/// Those that come with the panel.
TEST_F(Stores, HaveProgramsThatRunToTheirEnd) {
    Bench bench;
    bench.run(kMakeReady);
    for (const char* const choice : {"key End", "key End\nkey Up"}) {
        bench.run(std::string("key Esc\n") + kOpenList + choice + "\nkey Enter\nwait 300\nkey F1");
        EXPECT_EQ(bench.machine().state, G_NC_STATE_RUNNING);
        bench.run("wait 120000");
        EXPECT_EQ(bench.machine().state, G_NC_STATE_IDLE);
        EXPECT_EQ(bench.machine().work[kZ], 60.0) << "the last move";
        EXPECT_TRUE(bench.context().alarms.standing().empty());
    }
}

TEST_F(Stores, FetchAProgramFromAWebServer) {
    if (!WebServer::installed()) {
        GTEST_SKIP() << "nginx is not installed";
    }
    const WebServer web;
    web.serve("programs.txt", "bracket.nc\nmissing.nc\n");
    web.serve("bracket.nc", "G0 X9\n");
    const std::u16string url = web.url("/");
    profiles.write("panel.ini",
                   "[Panel]\nProgramServer=" + std::string(url.begin(), url.end()) + "\n");
    Bench bench(settings());
    const StoredProgram last{Store::WebServer, u"missing.nc"};
    bench.run(std::string(kOpenList) + "key End\nkey Up\nkey Enter\nwait 300");
    EXPECT_EQ(bench.context().store.listed().back(), last);
    EXPECT_EQ(bench.machine().program, u"server_bracket.nc");
    EXPECT_EQ(contentsOf(own.path("server_bracket.nc")), "G0 X9\n");
    bench.run("key F5\nkey End\nkey Enter\nwait 300");
    EXPECT_EQ(std::u16string_view(bench.context().message), u"FetchFailed");
}

/// A server that takes calls and says nothing.
TEST_F(Stores, AreNotWaitedFor) {
    const ListeningPort silent;
    profiles.write("panel.ini", "[Panel]\nProgramServer=http://127.0.0.1:" + silent.text() + "/\n");
    Environment::Values values = settings();
    values["QUARLO_PROFILES"] = PANEL_FOLDER "/profiles";
    const StartedPlatform platform(values);
    GetGPIFunction();
    ASSERT_TRUE(canPaint());
    Operator person(profiles.path());
    const auto begin = steady_clock::now();
    person.press({"F4", "F5"});
    EXPECT_TRUE(person.until([&] { return person.context().store.listed().size() == 2; }));
    person.press({"Down", "Enter"}); // of the data server, but waits for the other
    EXPECT_EQ(std::u16string_view(person.context().message), u"Fetching");
    EXPECT_TRUE(person.until([&] { return person.context().now.program == u"server_part.nc"; }));
    EXPECT_GT(steady_clock::now() - begin, milliseconds(1000)) << "as long as it was waited for";
    EXPECT_LT(person.longestPass(), kLongestPass);
}

} // namespace
} // namespace panel::test
