// Back ends without anything to look at while the program runs.
#pragma once

#include "display/back_end.h"

#include <string>
#include <utility>

namespace gpi {

/// Shows the picture nowhere; the frame itself can be written out on demand.
class MemoryBackEnd : public BackEnd {
  public:
    void show(const Frame&, std::span<const GRect>) override {}
    void setView(const View&) override {}
    bool finish(const Frame&) override { return true; }
};

/// Writes the final picture to a PNG file. The file shows the whole frame, whatever the view.
class PngBackEnd : public MemoryBackEnd {
  public:
    explicit PngBackEnd(std::string path) : path_(std::move(path)) {}

    bool finish(const Frame& frame) override;

  private:
    std::string path_;
};

} // namespace gpi
