#include "ftp_server.h"

#include "support/process.h"

#include <fstream>
#include <iterator>

namespace gpi::test {
namespace {

constexpr const char* kPython = "/usr/bin/python3"; // the one that Debian's packages are for

std::string contentsOf(const std::string& path) {
    std::ifstream file(path);
    return file ? std::string{std::istreambuf_iterator<char>(file), {}} : "none";
}

} // namespace

bool FtpServer::installed() {
    return run({kPython, "-c", "import pyftpdlib"}) == 0;
}

FtpServer::FtpServer()
    : process_(std::make_unique<ServerProcess>(
          std::vector<std::string>{kPython, FTP_SERVER, folder_.path()},
          std::vector<ListeningPort*>{&port_}, logs_.path("log"))) {}

std::string FtpServer::stored(const std::string& name) const {
    return contentsOf(path(name));
}

std::string FtpServer::log() const {
    return contentsOf(logs_.path("log"));
}

} // namespace gpi::test
