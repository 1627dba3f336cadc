// Who may connect, and what those do no harm with who break or stall a connection.
#include "vnc/served_display.h"
#include "vnc/viewer.h"

#include "support/listening.h"
#include "unique_fd.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>
#include <chrono>
#include <set>

namespace {

using namespace gpi::test;
using gpi::UniqueFd;

Environment::Values with(Environment::Values changes) {
    changes.insert({{"QUARLO_FORMAT", "24"}, {"QUARLO_WIDTH", "64"}, {"QUARLO_HEIGHT", "48"}});
    return changes;
}

/// Fills the display in a grey and flushes it by force.
void show(uint32_t grey) {
    GVram* const surface = StartedPlatform::surface();
    service<GPIFillRect>(GPI_SERVICE_FILL_RECT)(nullptr, surface, &surface->bounds, grey * 0x10101,
                                                G_MODE_COPY);
    StartedPlatform::flushAll();
}

/// Shows these greys in turn; the time that the slowest took.
std::chrono::steady_clock::duration longestOf(uint32_t first, uint32_t last) {
    using std::chrono::steady_clock;
    auto longest = steady_clock::duration::zero();
    for (uint32_t grey = first; grey <= last; ++grey) {
        const auto start = steady_clock::now();
        show(grey);
        longest = std::max(longest, steady_clock::now() - start);
    }
    return longest;
}

/// A connection that speaks as the test wants it.
UniqueFd connectTo(int port) {
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(static_cast<uint16_t>(port));
    name.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    UniqueFd fd(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    EXPECT_EQ(connect(fd.get(), reinterpret_cast<sockaddr*>(&name), sizeof name), 0);
    return fd;
}

void say(const UniqueFd& connection, const std::string& text) {
    EXPECT_EQ(send(connection.get(), text.data(), text.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(text.size()));
}

/// Reads exactly so many bytes; fewer when the connection ends.
std::string hear(const UniqueFd& connection, size_t count) {
    std::string text(count, '\0');
    const ssize_t length = recv(connection.get(), text.data(), count, MSG_WAITALL);
    text.resize(static_cast<size_t>(std::max<ssize_t>(length, 0)));
    return text;
}

TEST(VncAddress, IsLoopbackAlone) {
    EXPECT_EQ(listening(), std::vector<std::string>());
    const ServedDisplay display(with({}));
    ASSERT_TRUE(display.started());
    EXPECT_EQ(listening(), std::vector<std::string>{"127.0.0.1"});
}

TEST(VncAddress, BeyondLoopbackNeedsAPassword) {
    const ServedDisplay refused(with({{"QUARLO_VNC_ADDRESS", "0.0.0.0"}}));
    EXPECT_FALSE(refused.started());
    EXPECT_EQ(refused.said(), "gpi: cannot serve viewers at 0.0.0.0 port 0: an address that other "
                              "computers reach needs a password\n");
    EXPECT_EQ(listening(), std::vector<std::string>());
}

TEST(VncAddress, ThatIsNoneIsRefusedInOneLine) {
    for (const char* const address : {"panel", "127.0.0.256", "192.0.2.1"}) {
        const ServedDisplay refused(
            with({{"QUARLO_VNC_ADDRESS", address}, {"QUARLO_VNC_PASSWORD", "secret"}}));
        EXPECT_FALSE(refused.started());
        EXPECT_EQ(std::count(refused.said().begin(), refused.said().end(), '\n'), 1);
        EXPECT_NE(refused.said().find(address), std::string::npos) << refused.said();
    }
}

TEST(VncAddress, ThatIsTakenIsRefusedInOneLine) {
    const UniqueFd taken(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof name;
    auto* const address = reinterpret_cast<sockaddr*>(&name);
    ASSERT_EQ(bind(taken.get(), address, length), 0);
    ASSERT_EQ(listen(taken.get(), 1), 0);
    ASSERT_EQ(getsockname(taken.get(), address, &length), 0);
    const std::string port = std::to_string(ntohs(name.sin_port));
    const ServedDisplay display(with({{"QUARLO_VNC_PORT", port}}));
    EXPECT_FALSE(display.started());
    EXPECT_EQ(display.said(),
              "gpi: cannot serve viewers at 127.0.0.1 port " + port + ": Address already in use\n");
}

TEST(VncPassword, OpensAndNothingElseDoes) {
    const ServedDisplay display(with({{"QUARLO_VNC_PASSWORD", "spindle"}}));
    show(0x44);
    EXPECT_FALSE(Viewer(display.port(), "").connected());
    EXPECT_FALSE(Viewer(display.port(), "Spindle").connected());
    EXPECT_FALSE(Viewer(display.port(), "spindl").connected());
    Viewer viewer(display.port(), "spindle");
    ASSERT_TRUE(viewer.connected());
    EXPECT_EQ(viewer.at(0, 0), 0x444444U);
}

TEST(VncPassword, IsAskedForByTheServer) {
    const ServedDisplay display(with({{"QUARLO_VNC_PASSWORD", "spindle"}}));
    const UniqueFd connection = connectTo(display.port());
    EXPECT_EQ(hear(connection, 12).substr(0, 4), "RFB ");
    say(connection, "RFB 003.008\n");
    const std::string kinds = hear(connection, 2);
    ASSERT_EQ(kinds.size(), 2U);
    constexpr char kByPassword = 2;
    EXPECT_EQ(kinds[0], 1) << "one kind of access";
    EXPECT_EQ(kinds[1], kByPassword);
    say(connection, "\x01"); // none, which was not offered
    EXPECT_EQ(hear(connection, 1000).find("quarlo"), std::string::npos);
}

TEST(VncViewers, AreBounded) {
    const ServedDisplay display(with({}));
    std::vector<std::unique_ptr<Viewer>> viewers;
    for (int i = 0; i < 16; ++i) {
        viewers.push_back(std::make_unique<Viewer>(display.port()));
        ASSERT_TRUE(viewers.back()->connected()) << i;
    }
    const UniqueFd refused = connectTo(display.port());
    EXPECT_EQ(hear(refused, 12), "");
    show(0x55);
    EXPECT_TRUE(viewers[15]->until([&] { return viewers[15]->at(9, 9) == 0x555555; }));
}

TEST(VncViewers, ThatBreakOffLeaveTheOthersAlone) {
    const ServedDisplay display(with({}));
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    const std::string version = "RFB 003.008\n";
    const std::string none = "\x01";
    const std::string shared = "\x01";
    const std::string wild(1000, '\xFF');
    for (const std::string& words :
         {std::string(), std::string("GET / HTTP/1.1\r\n\r\n"), wild, version, version + wild,
          version + none, version + none + shared, version + none + shared + wild,
          // A clipboard of four thousand million bytes, of which none come.
          version + none + shared + std::string("\x06\0\0\0\xFF\xFF\xFF\xFF", 8)}) {
        const UniqueFd connection = connectTo(display.port());
        hear(connection, 12);
        if (!words.empty()) {
            say(connection, words);
        }
    }
    show(0x66);
    EXPECT_TRUE(viewer.until([&] { return viewer.at(9, 9) == 0x666666; }));
}

TEST(VncViewers, ThatStallDoNotStallDrawing) {
    // Enough that no buffer of the system holds it.
    const ServedDisplay display(
        {{"QUARLO_FORMAT", "24"}, {"QUARLO_WIDTH", "2560"}, {"QUARLO_HEIGHT", "2560"}});
    const auto unseen = longestOf(1, 5);
    Viewer stalled(display.port());
    ASSERT_TRUE(stalled.connected());
    // From here on it reads nothing, and it has asked for the next picture.
    EXPECT_LT(longestOf(6, 20), 2 * unseen + std::chrono::seconds(2))
        << "of the five that it is waited for";
    Viewer other(display.port());
    ASSERT_TRUE(other.connected());
    EXPECT_EQ(other.at(2559, 2559), 0x141414U);
}

TEST(VncViewers, AreTakenLeaveOfAtTheStop) {
    ServedDisplay display(with({}));
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    display.stop();
    EXPECT_FALSE(viewer.update());
    EXPECT_EQ(listening(), std::vector<std::string>());
}

} // namespace
