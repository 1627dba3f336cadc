#include "grf_writer.h"

#include <quarlo/grf_file.h>

namespace grf {
namespace {

/// Numbers low byte first.
class Writer {
  public:
    void append(uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i) {
            file_.push_back(static_cast<uint8_t>(value >> (8 * i)));
        }
    }
    void append(std::span<const uint8_t> bytes) {
        file_.insert(file_.end(), bytes.begin(), bytes.end());
    }

    std::vector<uint8_t> take() { return std::move(file_); }

  private:
    std::vector<uint8_t> file_;
};

} // namespace

std::vector<uint8_t> writeGrf(const Image& image, std::span<const uint8_t> stream) {
    constexpr uint8_t kMark[] = {'Q', 'G', 'R', 'F'};
    Writer file;
    file.append(kMark);
    file.append(G_GRF_FILE_VERSION, 2);
    file.append(image.packed ? G_GRF_PALETTE : G_GRF_DIRECT, 2);
    file.append(static_cast<uint32_t>(image.width), 2);
    file.append(static_cast<uint32_t>(image.height), 2);
    file.append(static_cast<uint32_t>(image.bits), 2);
    file.append(static_cast<uint32_t>(image.palette.size()), 2);
    for (const uint32_t mask : {image.format.red, image.format.green, image.format.blue}) {
        file.append(mask, 4);
    }
    file.append(static_cast<uint32_t>(stream.size()), 4);
    for (const uint32_t color : image.palette) {
        file.append(color, 4);
    }
    file.append(stream);
    return file.take();
}

} // namespace grf
