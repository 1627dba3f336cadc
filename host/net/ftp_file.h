// An open file on an FTP server.
#pragma once

#include "net/ftp_connection.h"
#include "net/remote_file.h"

namespace gpi {

class FtpFile : public RemoteFile {
  public:
    /// @param parent the connection, or what a connection of the file's own belongs to
    /// @param asked the URL that was asked for
    FtpFile(std::shared_ptr<Node> parent, std::shared_ptr<FtpConnection> connection,
            std::string asked, std::string path, bool ascii);

    // All throw NetError.
    void openToRead();
    void openToWrite();
    void finish() override;

  protected:
    std::unique_ptr<Source> reopen(int64_t position) override;
    HttpHead headToKeep() const override;

  private:
    const std::shared_ptr<FtpConnection> connection_;
    std::string path_; ///< whole once the file is open
    const bool ascii_;
};

} // namespace gpi
