// What services 83 to 86 do to URLs.
#pragma once

#include <quarlo/network.h>

#include <string>

namespace gpi {

/// The parts of a URL. @param flags as for GNetCrackUrl() @throws NetError
void crackUrl(const std::string& text, uint32_t flags, GNetUrl& parts);

/// A URL of parts. @param flags as for GNetCreateUrl() @throws NetError
std::string createUrl(const GNetUrl& parts, uint32_t flags);

/// A URL in its usual form. @param flags as for GNetCanonicalizeUrl() @throws NetError
std::string usualUrl(const std::string& url, uint32_t flags);

/// Where a relative URL leads, in its usual form. @param flags likewise @throws NetError
std::string combineUrl(const std::string& base, const std::string& relative, uint32_t flags);

} // namespace gpi
