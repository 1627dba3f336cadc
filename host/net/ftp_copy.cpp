#include "net/ftp_copy.h"

#include "file/error.h"
#include "file/file.h"

#include <unistd.h>

#include <vector>

namespace gpi {
namespace {

constexpr size_t kPiece = size_t{64} << 10;

} // namespace

void fetchFile(FtpConnection& connection, const std::string& remote, bool ascii, Place local,
               NewFile::End end) {
    requireFree(local, end.replace);
    const auto transfer = connection.openToRead(remote, ascii, 0);
    NewFile file(std::move(local));
    std::vector<uint8_t> piece(kPiece);
    while (const size_t count = transfer->read(piece.data(), piece.size())) {
        file.write({reinterpret_cast<const char*>(piece.data()), count});
    }
    file.become(end);
}

void sendFile(FtpConnection& connection, const Place& local, const std::string& remote,
              bool ascii) {
    const UniqueFd file = openFile(local, G_OPEN_READ);
    const auto transfer = connection.openToWrite(remote, ascii);
    std::vector<char> piece(kPiece);
    while (const ssize_t count = ::read(file.get(), piece.data(), piece.size())) {
        if (count < 0) {
            throwSystemError();
        }
        const auto size = static_cast<size_t>(count);
        const size_t sent = transfer->send({piece.data(), size});
        transfer->requireGood();
        require(sent == size, G_NET_BROKEN);
    }
    transfer->endSending();
    transfer->awaitEnd();
}

} // namespace gpi
