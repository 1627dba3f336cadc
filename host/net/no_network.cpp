// What a platform without a network has in its place.
#include "net/make_network.h"
#include "net/service_list.h"

namespace gpi {

GPIFunction networkServiceOf(int32_t /*number*/) {
    return nullptr;
}

std::shared_ptr<Network> makeNetwork(const Settings& /*settings*/) {
    return nullptr;
}

} // namespace gpi
