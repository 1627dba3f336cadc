// Folders of an FTP server.
#include "ftp_test.h"

#include <sys/stat.h>

#include <filesystem>
#include <set>

namespace gpi::test {
namespace {

class FtpList : public FtpTest {
  protected:
    FtpList() {
        for (const char* const name : {"O1.NC", "O2.NC", "O10.NC", "read me.txt", ".hidden"}) {
            server.serve(name, "12345");
        }
        std::filesystem::create_directory(server.path("sub"));
        server.serve("sub/deep", "");
    }

    /// The names that a pattern finds.
    std::set<std::u16string> names(const char16_t* pattern) {
        std::set<std::u16string> found;
        GNetFileInfo info{};
        GNetHandle* const list = findFirstFile(connection, pattern, &info, 0);
        if (list == nullptr) {
            return found;
        }
        do {
            EXPECT_TRUE(found.insert(info.name).second) << "told once";
        } while (findNextFile(list, &info) == 1);
        EXPECT_EQ(lastError(), G_NET_END);
        EXPECT_EQ(findNextFile(list, &info), 0);
        EXPECT_EQ(lastError(), G_NET_END);
        EXPECT_EQ(closeHandle(list), 1);
        return found;
    }

    using Names = std::set<std::u16string>;
};

TEST_F(FtpList, FindsEverything) {
    const Names all = {u"O1.NC", u"O2.NC", u"O10.NC", u"read me.txt", u".hidden", u"sub"};
    EXPECT_EQ(names(nullptr), all) << lastError();
    EXPECT_EQ(names(u"*"), all);
    EXPECT_EQ(names(u"/"), all);
}

TEST_F(FtpList, FindsByPattern) {
    EXPECT_EQ(names(u"O?.NC"), (Names{u"O1.NC", u"O2.NC"}));
    EXPECT_EQ(names(u"O*.NC"), (Names{u"O1.NC", u"O2.NC", u"O10.NC"}));
    EXPECT_EQ(names(u"* *"), Names{u"read me.txt"});
    EXPECT_EQ(names(u"O1.NC"), Names{u"O1.NC"});
    EXPECT_EQ(names(u"sub/*"), Names{u"deep"});
    EXPECT_EQ(names(u"/sub/d?ep"), Names{u"deep"});
    ASSERT_EQ(setCurrentDirectory(connection, u"sub"), 1);
    EXPECT_EQ(names(nullptr), Names{u"deep"});
    EXPECT_EQ(names(u"../O1*"), (Names{u"O1.NC", u"O10.NC"}));
}

TEST_F(FtpList, FindsNothing) {
    for (const char16_t* const pattern : {u"none", u"*.txt?", u"[O]1.NC", u"none/*"}) {
        GNetFileInfo info{};
        EXPECT_EQ(findFirstFile(connection, pattern, &info, 0), nullptr);
        EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
    }
    ASSERT_EQ(deleteFile(connection, u"sub/deep"), 1);
    EXPECT_EQ(names(u"sub/"), Names{});
    EXPECT_EQ(lastError(), G_NET_NOT_FOUND);
}

TEST_F(FtpList, TellsWhatAFileIs) {
    std::filesystem::resize_file(server.path("O1.NC"), (uint64_t{5} << 32) + 7);
    chmod(server.path("O1.NC").c_str(), 0440);
    GNetFileInfo info{};
    ASSERT_NE(findFirstFile(connection, u"O1.NC", &info, G_NET_RELOAD), nullptr) << lastError();
    EXPECT_EQ(info.sizeLow, 7U);
    EXPECT_EQ(info.sizeHigh, 5U);
    EXPECT_EQ(info.attributes, uint32_t{G_FILE_READABLE});
    EXPECT_NEAR(info.time, service<GPITime>(GPI_SERVICE_TIME)(nullptr), 120.0);
    ASSERT_NE(findFirstFile(connection, u"sub", &info, 0), nullptr);
    EXPECT_EQ(info.attributes & uint32_t{G_FILE_DIRECTORY | G_FILE_READABLE},
              uint32_t{G_FILE_DIRECTORY | G_FILE_READABLE});
    ASSERT_NE(findFirstFile(connection, u"O2.NC", &info, 0), nullptr);
    EXPECT_EQ(info.sizeLow, 5U);
    EXPECT_EQ(info.sizeHigh, 0U);
    EXPECT_EQ(info.attributes, uint32_t{G_FILE_READABLE | G_FILE_WRITABLE});
}

TEST_F(FtpList, LeavesTheConnectionFree) {
    GNetFileInfo info{};
    GNetHandle* const list = findFirstFile(connection, u"O*", &info, 0);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(deleteFile(connection, u"O1.NC"), 1) << lastError();
    EXPECT_EQ(findNextFile(list, &info), 1);
}

} // namespace
} // namespace gpi::test
