// What can be chosen for a handle.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace gpi {

/// The options of network.h that can be set. Times are milliseconds.
struct Options {
    int32_t connectTimeout = 10000;
    int32_t idleTimeout = 30000;
    int32_t redirects = 10;
    int32_t rate = 0;
    std::string agent = "quarlo";
    std::string user;
    std::string password;
    std::string proxy;
    std::string authorities; ///< path as the program named it
    /// Certificates of the authorities that are trusted beside the system's, as PEM; those of the
    /// platform's setting and those of `authorities`. Null for none.
    std::shared_ptr<const std::string> shippedCertificates;
    std::shared_ptr<const std::string> ownCertificates;
};

/// Hands out the value of an option.
///
/// @param value,size as for GNetQueryOption()
/// @throws NetError G_NET_NOT_FOUND where the option is none of these
void queryOption(const Options& options, int32_t option, void* value, int32_t* size);

/// Checks a value and sets it; G_NET_OPTION_AUTHORITIES with the path alone.
///
/// @param value,size as for GNetSetOption() @throws NetError
void setOption(Options& options, int32_t option, const void* value, int32_t size);

/// Hands out a number to a buffer of bytes. @throws NetError G_NET_BUFFER
void handOutBytes(const void* bytes, int32_t count, void* value, int32_t* size);

} // namespace gpi
