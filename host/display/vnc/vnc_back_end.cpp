#include "display/vnc/vnc_back_end.h"

#include "display/frame_show.h"
#include "display/vnc/vnc_server.h"
#include "report.h"

#include <utility>

namespace gpi {
namespace {

std::string placeOf(const Settings& settings, int port) {
    return settings.vncAddress + " port " + std::to_string(port);
}

} // namespace

std::unique_ptr<BackEnd> openVncBackEnd(const Settings& settings, const Frame& frame,
                                        Input& input) {
    std::string failure;
    auto server = VncServer::open(settings, input, failure);
    if (server == nullptr) {
        report("cannot serve viewers at " + placeOf(settings, settings.vncPort) + ": " + failure);
        return nullptr;
    }
    report("viewers connect to " + placeOf(settings, server->port()));
    return showInThread(std::move(server), frame, Settling::GoesOn);
}

} // namespace gpi
