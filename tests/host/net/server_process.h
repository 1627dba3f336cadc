// Servers that run for the time of a test.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace gpi::test {

/// A free port of the loopback address on which clients can queue up from now on.
class ListeningPort {
  public:
    ListeningPort();
    ~ListeningPort() { stop(); }
    ListeningPort(const ListeningPort&) = delete;
    ListeningPort& operator=(const ListeningPort&) = delete;

    int number() const { return number_; }
    int file() const { return file_; }
    std::string text() const { return std::to_string(number_); }

    /// Leaves the port to others: to those that have inherited it, or to who takes it next.
    void stop();

  private:
    int file_ = -1;
    int number_ = 0;
};

/// A program to which ports are handed as its files from 3 on. It ends with the test.
class ServerProcess {
  public:
    /// @param log the file that its output goes to
    ServerProcess(const std::vector<std::string>& words, const std::vector<ListeningPort*>& ports,
                  const std::string& log);
    ~ServerProcess() { end(); }
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;

    /// Stops it in whatever it does; its clients wait.
    void freeze() const;
    void thaw() const;

    /// Kills it, and with it its connections.
    void end();

    /// Whether it has ended by itself.
    bool ended();

  private:
    pid_t process_;
};

/// Whether someone takes calls on a port of the loopback address.
bool answers(int port);

} // namespace gpi::test
