#include "net/ftp_connection.h"

#include "net/ftp_reply.h"

namespace gpi {

FtpConnection::FtpConnection(std::shared_ptr<Node> parent, Options options, const Url& server,
                             bool active)
    : Node(G_NET_KIND_CONNECTION, std::move(parent), std::move(options)),
      server_(server.text()),
      active_(active) {}

std::string FtpConnection::absolute(const std::string& path) const {
    if (path.starts_with('/')) {
        return path;
    }
    return folder_ + (folder_.ends_with('/') ? "" : "/") + path;
}

std::string FtpConnection::urlOf(const std::string& path) const {
    // Behind the host's slash a URL's path counts from the folder of the login.
    return server_ + "%2F" + escapedPath(absolute(path).substr(1));
}

std::unique_ptr<Transfer> FtpConnection::prepare(const std::string& url) {
    auto transfer = std::make_unique<Transfer>(line_->take(), options());
    transfer->set(CURLOPT_URL, url.c_str());
    transfer->set(CURLOPT_PROXY, ""); // a proxy of HTTP would make HTTP of it
    transfer->set(CURLOPT_FTP_FILEMETHOD, static_cast<long>(CURLFTPMETHOD_SINGLECWD));
    if (active_) {
        transfer->set(CURLOPT_FTPPORT, "-"); // the address that the server sees already
    }
    return transfer;
}

std::unique_ptr<Transfer> FtpConnection::prepareFile(const std::string& path, bool ascii) {
    require(!path.empty() && !path.ends_with('/'));
    auto transfer = prepare(urlOf(path));
    transfer->set(CURLOPT_TRANSFERTEXT, ascii ? 1L : 0L);
    transfer->setListener([](std::string_view line) {
        const int code = codeOfFtpReply(line);
        return code == 125 || code == 150;
    });
    return transfer;
}

std::unique_ptr<Transfer> FtpConnection::openToRead(const std::string& path, bool ascii,
                                                    int64_t position) {
    auto transfer = prepareFile(path, ascii);
    transfer->set(CURLOPT_RESUME_FROM_LARGE, static_cast<curl_off_t>(position));
    transfer->awaitContents();
    return transfer;
}

std::unique_ptr<Transfer> FtpConnection::openToWrite(const std::string& path, bool ascii) {
    auto transfer = prepareFile(path, ascii);
    transfer->set(CURLOPT_UPLOAD, 1L);
    transfer->awaitContents();
    return transfer;
}

std::optional<std::string> FtpConnection::command(const std::vector<std::string>& commands) {
    std::optional<std::string> folder;
    auto transfer = prepare(server_);
    transfer->setListener([&folder](std::string_view line) {
        if (auto named = folderOfFtpReply(line)) {
            folder = std::move(named);
        }
        return false;
    });
    transfer->set(CURLOPT_NOBODY, 1L);
    transfer->set(CURLOPT_QUOTE, commands);
    transfer->awaitEnd();
    return folder;
}

void FtpConnection::connect() {
    // libcurl asks for the folder by itself when it has logged in.
    const std::string entry = command({}).value_or("/");
    folder_ = entry.starts_with('/') ? entry : "/";
}

void FtpConnection::changeFolder(const std::string& path) {
    const std::string wanted = absolute(path);
    const std::string reached = command({"CWD " + wanted, "PWD"}).value_or(wanted);
    folder_ = reached.starts_with('/') ? reached : wanted;
}

void FtpConnection::rename(const std::string& from, const std::string& to) {
    command({"RNFR " + absolute(from), "RNTO " + absolute(to)});
}

} // namespace gpi
