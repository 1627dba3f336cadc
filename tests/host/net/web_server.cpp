#include "web_server.h"

#include "nc/eventually.h"
#include "support/process.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace gpi::test {
namespace {

constexpr const char* kNginx = "/usr/sbin/nginx";
constexpr int kAttempts = 5;

std::string contentsOf(const std::string& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void fillIn(std::string& text, const std::string& mark, const std::string& value) {
    for (size_t at = text.find(mark); at != text.npos; at = text.find(mark, at)) {
        text.replace(at, mark.size(), value);
    }
}

} // namespace

bool WebServer::installed() {
    return std::filesystem::exists(kNginx) && std::filesystem::exists("/usr/bin/openssl");
}

WebServer::WebServer() {
    run({MAKE_CERTIFICATES, folder_.path()});
    std::filesystem::create_directories(folder_.path("www/store"));
    folder_.write("users", "operator:{PLAIN}secret\n");
    for (int attempt = 0; attempt < kAttempts && !start(); ++attempt) {
    }
}

/// Starts it on free ports. Another program may be faster to take one of them.
bool WebServer::start() {
    ports_ = std::make_unique<Ports>();
    folder_.write("conf", configuration());
    for (ListeningPort* const port :
         {&ports_->plain, &ports_->good, &ports_->stranger, &ports_->elsewhere, &ports_->expired}) {
        port->stop();
    }
    process_ = std::make_unique<ServerProcess>(
        std::vector<std::string>{kNginx, "-c", folder_.path("conf"), "-e", folder_.path("log")},
        std::vector<ListeningPort*>{}, folder_.path("log"));
    return nc::test::eventually([this] { return process_->ended() || answers(port()); }) &&
           !process_->ended();
}

std::string WebServer::configuration() const {
    std::string text = contentsOf(WEB_SERVER_CONF);
    fillIn(text, "@FOLDER@", folder_.path());
    fillIn(text, "@PLAIN@", ports_->plain.text());
    fillIn(text, "@GOOD@", ports_->good.text());
    fillIn(text, "@STRANGER@", ports_->stranger.text());
    fillIn(text, "@ELSEWHERE@", ports_->elsewhere.text());
    fillIn(text, "@EXPIRED@", ports_->expired.text());
    return text;
}

std::u16string WebServer::at(const std::string& scheme, const ListeningPort& port,
                             const std::string& path) {
    const std::string url = scheme + "://127.0.0.1:" + port.text() + path;
    return {url.begin(), url.end()};
}

void WebServer::serve(const std::string& name, const std::string& contents) const {
    folder_.write("www/" + name, contents);
}

std::string WebServer::log() const {
    return contentsOf(folder_.path("log"));
}

} // namespace gpi::test
