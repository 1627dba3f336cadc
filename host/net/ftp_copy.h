// Whole files from and to an FTP server.
#pragma once

#include "net/ftp_connection.h"
#include "net/new_file.h"

#include <string>

namespace gpi {

/// Fetches a file. @throws NetError, IoError, and leaves the local file as it was
void fetchFile(FtpConnection& connection, const std::string& remote, bool ascii, Place local,
               NewFile::End end);

/// Sends a file. @throws NetError, IoError
void sendFile(FtpConnection& connection, const Place& local, const std::string& remote, bool ascii);

} // namespace gpi
