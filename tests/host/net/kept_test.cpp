// What was read is kept for as long as someone wants it.
#include "web_test.h"

namespace gpi::test {
namespace {

using Kept = WebTest;

TEST_F(Kept, ContentsOutliveTheirHandle) {
    server->serve("kept.txt", "first");
    GNetHandle* const file = ask("/kept.txt");
    EXPECT_EQ(rest(file), "first");
    GNetLock* lock = nullptr;
    ASSERT_EQ(lockRequestFile(file, &lock), 1);
    EXPECT_EQ(closeHandle(file), 1);
    server->serve("kept.txt", "second");

    GNetHandle* const again = ask("/kept.txt");
    EXPECT_EQ(status(again), 200);
    EXPECT_EQ(textInfo(again, G_HTTP_CONTENT_TYPE), u"text/plain");
    int32_t available = 0;
    EXPECT_EQ(queryDataAvailable(again, &available), 1);
    EXPECT_EQ(available, 5);
    EXPECT_EQ(rest(again), "first");
    EXPECT_EQ(setFilePointer(again, -2, G_SEEK_END), 3);
    EXPECT_EQ(rest(again), "st");
    EXPECT_EQ(sendRequest(again, nullptr, nullptr, 0), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);

    EXPECT_EQ(rest(ask("/kept.txt", G_NET_RELOAD)), "second");
    EXPECT_EQ(unlockRequestFile(lock), 1);
    EXPECT_EQ(rest(ask("/kept.txt")), "second");
    EXPECT_EQ(setFilePointer(again, 0, G_SEEK_START), 0) << "who reads it has it still";
    EXPECT_EQ(rest(again), "first");
    EXPECT_EQ(unlockRequestFile(lock), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE);
}

TEST_F(Kept, IsWhatHasBeenRead) {
    GNetHandle* const file = ask("/digits.txt");
    EXPECT_EQ(bytes(file, 4), "0123");
    EXPECT_EQ(setFilePointer(file, 8, G_SEEK_START), 8);
    EXPECT_EQ(rest(file), "89") << "not in a row with the begin";
    EXPECT_EQ(setFilePointer(file, 2, G_SEEK_START), 2);
    EXPECT_EQ(bytes(file, 4), "2345");
    GNetLock* lock = nullptr;
    ASSERT_EQ(lockRequestFile(file, &lock), 1);
    EXPECT_EQ(rest(ask("/digits.txt")), "012345");
    EXPECT_EQ(unlockRequestFile(lock), 1);
}

TEST_F(Kept, GoesToNobodyElse) {
    const std::u16string url = loginUrl("/private");
    GNetHandle* const mine = openUrl(session, url.c_str(), nullptr, 0);
    EXPECT_EQ(rest(mine), "nobody else's");
    GNetLock* lock = nullptr;
    ASSERT_EQ(lockRequestFile(mine, &lock), 1);
    EXPECT_EQ(status(ask("/private")), 401);
    EXPECT_EQ(rest(openUrl(session, url.c_str(), nullptr, 0)), "nobody else's");
    EXPECT_EQ(unlockRequestFile(lock), 1);
}

TEST_F(Kept, IsNotMoreThanThereIsMemoryFor) {
    server->serve("huge.txt", std::string((16 << 20) + 1, 'h'));
    GNetHandle* const file = ask("/huge.txt");
    EXPECT_EQ(rest(file).size(), (size_t{16} << 20) + 1);
    GNetLock* lock = nullptr;
    EXPECT_EQ(lockRequestFile(file, &lock), 0);
    EXPECT_EQ(lastError(), G_NET_NO_MEMORY);
    EXPECT_EQ(lock, nullptr);
}

TEST_F(Kept, IsNothingThatWasNotAskedFor) {
    GNetLock* lock = nullptr;
    EXPECT_EQ(lockRequestFile(request(nullptr, u"/digits.txt"), &lock), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    GNetHandle* const posted = request(u"POST", u"/echo");
    EXPECT_EQ(sendRequest(posted, nullptr, nullptr, 0), 1);
    EXPECT_EQ(lockRequestFile(posted, &lock), 0);
    EXPECT_EQ(lastError(), G_NET_STATE);
    EXPECT_EQ(lockRequestFile(session, &lock), 0);
    EXPECT_EQ(lastError(), G_NET_HANDLE_KIND);
    EXPECT_EQ(lock, nullptr);
}

} // namespace
} // namespace gpi::test
