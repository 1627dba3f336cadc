// The faces that are installed.
#pragma once

#include "font/face_file.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace gpi {

/// Finds faces by their family's name. Reads what is installed when it is first asked.
class FaceFinder {
  public:
    FaceFinder();
    ~FaceFinder();

    /// The upright, regular face of a family.
    std::optional<FaceFile> find(const std::string& family);

    /// Number of families.
    int32_t count();

  private:
    struct Installed;

    const Installed& installed();

    std::unique_ptr<Installed> installed_;
};

} // namespace gpi
