// A platform whose files are below a folder of the test's own.
#pragma once

#include "support/started_platform.h"

#include <string>

namespace gpi::test {

class FileRoot {
  public:
    std::string path(const std::string& name = "") const { return folder_.path(name); }
    void write(const std::string& name, const std::string& text) const {
        folder_.write(name, text);
    }

  private:
    TemporaryFolder folder_;
    StartedPlatform platform_{{"QUARLO_FILES", folder_.path()}};
};

} // namespace gpi::test
