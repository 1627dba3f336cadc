// The faces that are installed, by fontconfig.
#pragma once

#include "font/face_file.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

struct _FcConfig;

namespace gpi {

/// Finds faces by their family's name. Reads what is installed when it is first asked.
class FaceFinder {
  public:
    /// The upright, regular face of a family. Fontconfig finds some face for every name: one of
    /// another family counts as none.
    std::optional<FaceFile> find(const std::string& family);

    /// Number of families.
    int32_t count();

  private:
    struct Destroy {
        void operator()(_FcConfig* config) const;
    };

    _FcConfig* config();

    std::unique_ptr<_FcConfig, Destroy> config_;
};

} // namespace gpi
