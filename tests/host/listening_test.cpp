// Where nothing was set, nobody can connect to a program from outside.
#include "net/network.h"
#include "support/listening.h"
#include "unique_fd.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace gpi::test {
namespace {

using Addresses = std::vector<std::string>;

TEST(Listening, IsSeen) {
    const UniqueFd open(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ASSERT_EQ(bind(open.get(), reinterpret_cast<sockaddr*>(&name), sizeof name), 0);
    EXPECT_EQ(listening(), Addresses());
    ASSERT_EQ(listen(open.get(), 1), 0);
    EXPECT_EQ(listening(), Addresses{"127.0.0.1"});
}

TEST(Listening, IsNothingThatThePlatformDoesByItself) {
    for (const char* const display : {"memory", "png"}) {
        const TemporaryFolder folder;
        const StartedPlatform platform(
            {{"QUARLO_DISPLAY", display}, {"QUARLO_PNG", folder.path("end.png")}});
        ASSERT_EQ(platform.started(), 1U) << display;
        GNetHandle* const session = openSession(nullptr);
        ASSERT_NE(session, nullptr);
        EXPECT_NE(connectTo(session, u"localhost", 0, nullptr, nullptr, G_NET_HTTPS, 0), nullptr);
        EXPECT_EQ(listening(), Addresses()) << display;
        closeHandle(session);
    }
}

} // namespace
} // namespace gpi::test
