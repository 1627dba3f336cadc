// The entries of a folder on an FTP server.
#pragma once

#include "net/ftp_connection.h"

#include <string>
#include <string_view>
#include <vector>

namespace gpi {

class FtpList : public Node {
  public:
    /// Fetches a list.
    ///
    /// @param pattern folder and name with wildcards; empty for all of the current folder
    /// @throws NetError G_NET_NOT_FOUND also when it is empty
    FtpList(const std::shared_ptr<FtpConnection>& connection, const std::string& pattern);

    /// @throws NetError G_NET_END
    const GNetFileInfo& next();

  private:
    std::vector<GNetFileInfo> entries_;
    size_t next_ = 0;
};

/// Whether a name is meant by a pattern in which '*' stands for any text and '?' for any unit.
bool matches(std::u16string_view pattern, std::u16string_view name);

} // namespace gpi
