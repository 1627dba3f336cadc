// Files on a medium without room.
#include "file/file.h"

#include <quarlo/file.h>

#include <gtest/gtest.h>

#include <fcntl.h>

#include <vector>

namespace {

using gpi::File;
using gpi::UniqueFd;

File fullDevice() {
    return File(UniqueFd(open("/dev/full", O_WRONLY | O_CLOEXEC)), G_OPEN_WRITE);
}

TEST(FullDisk, IsToldWhenTheFileIsClosed) {
    File file = fullDevice();
    int32_t done = 0;
    EXPECT_EQ(file.write("data", 4, &done), 1); // still in the buffer
    EXPECT_EQ(done, 4);
    EXPECT_EQ(file.close(File::Closing::Plain), G_IO_FULL);
}

TEST(FullDisk, IsToldWhenTheBufferIsFull) {
    File file = fullDevice();
    const std::vector<char> data(1 << 20);
    int32_t done = -1;
    EXPECT_EQ(file.write(data.data(), 1 << 20, &done), G_IO_FULL);
    EXPECT_LT(done, 1 << 20);
    file.close(File::Closing::Lasting);
}

} // namespace
