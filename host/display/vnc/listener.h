// Where viewers knock.
#pragma once

#include "unique_fd.h"

#include <cstdint>
#include <string>

namespace gpi {

/// A socket that listens for connections and never waits.
class Listener {
  public:
    /// @param address numbers, of either version of the internet protocol
    /// @param port 0 for any that is free
    /// @param failure says why it does not listen
    static Listener open(const std::string& address, int port, std::string& failure);

    explicit operator bool() const { return static_cast<bool>(socket_); }
    int descriptor() const { return socket_.get(); }
    int port() const { return port_; }

    /// The next connection that waits; none, and errno says why, when there is none to be had.
    UniqueFd accept() const;

  private:
    UniqueFd socket_;
    int port_ = 0;
};

/// Whether only programs of this computer reach an address.
bool isLoopback(const std::string& address);

} // namespace gpi
