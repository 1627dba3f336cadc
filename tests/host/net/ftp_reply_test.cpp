#include "net/ftp_reply.h"

#include <quarlo/network.h>

#include <gtest/gtest.h>

namespace {

using namespace gpi;

TEST(FtpReply, HasACodeInItsLastLine) {
    EXPECT_EQ(codeOfFtpReply("226 Transfer complete."), 226);
    EXPECT_EQ(codeOfFtpReply("226"), 226);
    EXPECT_EQ(codeOfFtpReply("226-Part of it"), 0);
    EXPECT_EQ(codeOfFtpReply("22"), 0);
    EXPECT_EQ(codeOfFtpReply("2x6 "), 0);
    EXPECT_EQ(codeOfFtpReply("-26 "), 0);
    EXPECT_EQ(codeOfFtpReply(""), 0);
}

TEST(FtpReply, SaysWhySomethingIsRefused) {
    const std::pair<const char*, int32_t> replies[] = {
        {"550 No such file or directory.", G_NET_NOT_FOUND},
        {"550 O1: The system cannot find the file specified.", G_NET_NOT_FOUND},
        {"550 File doesn't exist", G_NET_NOT_FOUND},
        {"550 Failed to open file.", G_NET_NOT_FOUND},
        {"550 Permission denied.", G_NET_DENIED},
        {"550 Not enough privileges.", G_NET_DENIED},
        {"550 Operation not permitted", G_NET_DENIED},
        {"550 Directory not empty.", G_NET_DENIED},
        {"550 File exists.", G_NET_EXISTS},
        {"550 sub: Directory already exists", G_NET_EXISTS},
        {"553 Could not create file.", G_NET_DENIED},
        {"450 File busy.", G_NET_DENIED},
        {"452 Insufficient storage space.", G_NET_FULL},
        {"552 Quota exceeded.", G_NET_FULL},
        {"530 Log in first.", G_NET_LOGIN},
        {"532 Need account.", G_NET_LOGIN},
        {"502 Command not implemented.", G_NET_UNSUPPORTED},
        {"504 Not for that parameter.", G_NET_UNSUPPORTED},
        {"421 Good bye.", G_NET_BROKEN},
        {"426 Connection closed.", G_NET_BROKEN},
        {"451 Local error.", G_NET_SERVER},
        {"nonsense", G_NET_SERVER},
    };
    for (const auto& [line, error] : replies) {
        EXPECT_EQ(errorOfFtpReply(line), error) << line;
    }
}

TEST(FtpReply, NamesAFolder) {
    EXPECT_EQ(folderOfFtpReply("257 \"/\" is the current directory."), "/");
    EXPECT_EQ(folderOfFtpReply("257 \"/a \"\"b\"\"\""), "/a \"b\"");
    EXPECT_EQ(folderOfFtpReply("257 \"\""), "");
    EXPECT_EQ(folderOfFtpReply("257 \"/open end"), std::nullopt);
    EXPECT_EQ(folderOfFtpReply("257 /bare"), std::nullopt);
    EXPECT_EQ(folderOfFtpReply("250 \"/other\""), std::nullopt);
}

} // namespace
