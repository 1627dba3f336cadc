// Frame buffer devices.
#include "display/screen/mapping.h"
#include "display/screen/screen_device.h"

#include <fcntl.h>
#include <linux/fb.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace gpi {
namespace {

uint32_t maskOf(const fb_bitfield& field) {
    const uint64_t run = (uint64_t{1} << field.length) - 1;
    return field.length <= 32 && field.offset < 32 ? static_cast<uint32_t>(run << field.offset) : 0;
}

ScreenFormat formatOf(const fb_var_screeninfo& mode) {
    return {static_cast<int>(mode.bits_per_pixel), maskOf(mode.red), maskOf(mode.green),
            maskOf(mode.blue), mode.transp.length != 0 ? maskOf(mode.transp) : 0};
}

/// Some devices look each channel up in a table. Makes it do nothing.
void straightenColors(int device) {
    std::array<uint16_t, 256> ramp;
    for (size_t value = 0; value < ramp.size(); ++value) {
        ramp[value] = static_cast<uint16_t>(value * 0x101);
    }
    fb_cmap table{0, ramp.size(), ramp.data(), ramp.data(), ramp.data(), nullptr};
    ioctl(device, FBIOPUTCMAP, &table);
}

class Fbdev : public ScreenDevice {
  public:
    Fbdev(UniqueFd device, const fb_var_screeninfo& mode, ptrdiff_t stride, Mapping memory)
        : device_(std::move(device)),
          size_{static_cast<int>(mode.xres), static_cast<int>(mode.yres)},
          format_(formatOf(mode)),
          memory_(std::move(memory)),
          seen_{memory_.start() + static_cast<ptrdiff_t>(mode.yoffset) * stride +
                    static_cast<ptrdiff_t>(mode.xoffset) * format_.bytes(),
                stride} {}

    Size size() const override { return size_; }
    ScreenFormat format() const override { return format_; }
    std::span<const ScreenBuffer> buffers() const override { return {&seen_, 1}; }

    /// Some drivers hand the memory on to their device in their own time: now, if you please.
    void show(size_t /*buffer*/) override { fsync(device_.get()); }

  private:
    UniqueFd device_;
    Size size_;
    ScreenFormat format_;
    Mapping memory_;
    ScreenBuffer seen_;
};

/// Whether the visible part of the picture is in the memory, and its pixels can be written.
bool isUsable(const fb_var_screeninfo& mode, const fb_fix_screeninfo& device) {
    constexpr uint32_t kLargest = INT16_MAX;
    const ScreenFormat format = formatOf(mode);
    if (device.type != FB_TYPE_PACKED_PIXELS || mode.xres == 0 || mode.yres == 0 ||
        mode.xres > kLargest || mode.yres > kLargest || !isUsable(format)) {
        return false;
    }
    const auto bytes = static_cast<uint64_t>(format.bytes());
    const uint64_t rows = uint64_t{mode.yoffset} + mode.yres;
    return (uint64_t{mode.xoffset} + mode.xres) * bytes <= device.line_length &&
           rows * device.line_length <= device.smem_len;
}

} // namespace

std::unique_ptr<ScreenDevice> openFbdev(const std::string& path, std::string& failure) {
    UniqueFd device(open(path.empty() ? "/dev/fb0" : path.c_str(), O_RDWR | O_CLOEXEC));
    fb_var_screeninfo mode{};
    fb_fix_screeninfo fixed{};
    if (!device || ioctl(device.get(), FBIOGET_VSCREENINFO, &mode) != 0 ||
        ioctl(device.get(), FBIOGET_FSCREENINFO, &fixed) != 0) {
        failure = std::strerror(errno);
        return nullptr;
    }
    if (!isUsable(mode, fixed)) {
        failure = "its pixels are of no known kind";
        return nullptr;
    }
    Mapping memory(device.get(), fixed.smem_len, 0);
    if (!memory) {
        failure = std::strerror(errno);
        return nullptr;
    }
    if (fixed.visual == FB_VISUAL_DIRECTCOLOR) {
        straightenColors(device.get());
    }
    ioctl(device.get(), FBIOBLANK, FB_BLANK_UNBLANK);
    return std::make_unique<Fbdev>(std::move(device), mode,
                                   static_cast<ptrdiff_t>(fixed.line_length), std::move(memory));
}

} // namespace gpi
