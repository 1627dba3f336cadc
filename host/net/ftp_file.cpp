#include "net/ftp_file.h"

namespace gpi {

FtpFile::FtpFile(std::shared_ptr<Node> parent, std::shared_ptr<FtpConnection> connection,
                 std::string asked, std::string path, bool ascii)
    : RemoteFile(G_NET_KIND_FTP_FILE, std::move(parent), connection->options(), std::move(asked)),
      connection_(std::move(connection)),
      path_(std::move(path)),
      ascii_(ascii) {}

void FtpFile::openToRead() {
    path_ = connection_->absolute(path_);
    auto transfer = connection_->openToRead(path_, ascii_, 0);
    const auto size = transfer->info<curl_off_t>(CURLINFO_CONTENT_LENGTH_DOWNLOAD_T);
    begin(std::move(transfer), ascii_ ? -1 : size); // translated, it will be another size
}

void FtpFile::openToWrite() {
    path_ = connection_->absolute(path_);
    sending = connection_->openToWrite(path_, ascii_);
}

void FtpFile::finish() {
    if (const auto whole = std::move(sending)) {
        whole->endSending();
        whole->awaitEnd();
    }
}

HttpHead FtpFile::headToKeep() const {
    require(!ascii_, G_NET_UNSUPPORTED);
    return {};
}

std::unique_ptr<Source> FtpFile::reopen(int64_t position) {
    require(!ascii_ || position == 0, G_NET_UNSUPPORTED);
    return connection_->openToRead(path_, ascii_, position);
}

} // namespace gpi
