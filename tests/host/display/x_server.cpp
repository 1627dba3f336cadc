#include "x_server.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace gpi::test {

XServer::XServer(const std::string& screen) {
    int ready[2] = {};
    if (pipe(ready) != 0) {
        return;
    }
    process_ = fork();
    if (process_ == 0) {
        close(ready[0]);
        // The server chooses a free number and tells it when it is ready.
        become({XVFB, "-displayfd", std::to_string(ready[1]), "-screen", "0", screen, "-nolisten",
                "tcp"});
    }
    close(ready[1]);
    char byte = 0;
    std::string number;
    while (read(ready[0], &byte, 1) == 1 && byte != '\n') {
        number += byte;
    }
    close(ready[0]);
    display_ = number.empty() ? "" : ":" + number;
}

XServer::~XServer() {
    if (process_ > 0) {
        kill(process_, SIGTERM);
        waitpid(process_, nullptr, 0);
    }
}

} // namespace gpi::test
