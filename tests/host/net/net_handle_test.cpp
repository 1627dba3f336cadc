// Handles without a server.
#include "network.h"

#include <set>

namespace gpi::test {
namespace {

class NetHandle : public testing::Test {
  protected:
    GNetHandle* server(GNetHandle* of, int32_t protocol = G_NET_HTTP) {
        return connectTo(of, u"localhost", 0, nullptr, nullptr, protocol, 0);
    }
    static GNetHandle* request(GNetHandle* of) {
        return openRequest(of, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    }
    static GNetHandle* parent(GNetHandle* handle) {
        GNetHandle* found = handle;
        int32_t size = sizeof found;
        EXPECT_EQ(queryOption(handle, G_NET_OPTION_PARENT, static_cast<void*>(&found), &size), 1);
        EXPECT_EQ(size, int32_t{sizeof found});
        return found;
    }

    StartedPlatform platform;
    GNetHandle* session = openSession(nullptr);
};

TEST_F(NetHandle, KnowsWhatItIsAndBelongsTo) {
    GNetHandle* const connection = server(session);
    GNetHandle* const asked = request(connection);
    ASSERT_NE(asked, nullptr) << lastError();
    EXPECT_EQ(numberOption(session, G_NET_OPTION_KIND), G_NET_KIND_SESSION);
    EXPECT_EQ(numberOption(connection, G_NET_OPTION_KIND), G_NET_KIND_CONNECTION);
    EXPECT_EQ(numberOption(asked, G_NET_OPTION_KIND), G_NET_KIND_REQUEST);
    EXPECT_EQ(parent(session), nullptr);
    EXPECT_EQ(parent(connection), session);
    EXPECT_EQ(parent(asked), connection);
    EXPECT_EQ(textOption(connection, G_NET_OPTION_URL), u"http://localhost/");
    EXPECT_EQ(textOption(asked, G_NET_OPTION_URL), u"http://localhost/");
    EXPECT_EQ(textOption(session, G_NET_OPTION_URL), u"failed");
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
}

TEST_F(NetHandle, TakesAllThatBelongToItAlong) {
    GNetHandle* const first = server(session);
    GNetHandle* const second = server(session, G_NET_HTTPS);
    GNetHandle* const below = request(first);
    EXPECT_EQ(closeHandle(first), 1);
    EXPECT_EQ(closeHandle(below), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
    EXPECT_EQ(closeHandle(second), 1);
    EXPECT_EQ(closeHandle(session), 1);
    EXPECT_EQ(closeHandle(session), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
    EXPECT_EQ(server(session), nullptr);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
}

TEST_F(NetHandle, IsNotTakenForALaterOne) {
    GNetHandle* const first = server(session);
    EXPECT_EQ(closeHandle(first), 1);
    GNetHandle* const second = server(session);
    EXPECT_NE(first, second);
    EXPECT_EQ(numberOption(first, G_NET_OPTION_KIND), -1);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
}

TEST_F(NetHandle, IsOneOfSoMany) {
    std::set<GNetHandle*> handles;
    while (GNetHandle* const handle = server(session)) {
        ASSERT_TRUE(handles.insert(handle).second);
        ASSERT_LT(handles.size(), 100000U);
    }
    EXPECT_EQ(lastError(), G_NET_TOO_MANY);
    EXPECT_GE(handles.size(), 1000U);
    EXPECT_EQ(closeHandle(session), 1);
    session = openSession(nullptr);
    EXPECT_NE(server(session), nullptr);
}

TEST(NetWithoutPlatform, Fails) {
    EXPECT_EQ(openSession(nullptr), nullptr);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(closeHandle(nullptr), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    GNetUrl parts{};
    EXPECT_EQ(crackUrl(u"http://host/", 0, &parts), 1) << "URLs want no network";
    EXPECT_EQ(lastError(), G_NET_OK);
}

TEST(NetWithoutPlatform, LosesItsHandles) {
    auto first = std::make_unique<StartedPlatform>();
    GNetHandle* const session = openSession(nullptr);
    first.reset();
    EXPECT_EQ(closeHandle(session), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    const StartedPlatform second;
    EXPECT_EQ(closeHandle(session), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
}

} // namespace
} // namespace gpi::test
