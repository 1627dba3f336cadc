// Graphics cards by the kernel's mode setting: plain memory, shown by page flips.
#include "display/screen/drm_output.h"
#include "display/screen/mapping.h"
#include "display/screen/screen_device.h"

#include <poll.h>
#include <xf86drm.h>

#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

namespace gpi {
namespace {

/// Memory of a card that can be shown. Null memory when the card is short of it.
class DrmBuffer {
  public:
    DrmBuffer(const DrmOutput& output) : card_(output.card.get()) {
        const auto width = output.mode.hdisplay;
        const auto height = output.mode.vdisplay;
        const auto bits = static_cast<uint32_t>(output.format.format.bits);
        uint32_t stride = 0;
        uint64_t size = 0;
        uint64_t offset = 0;
        if (drmModeCreateDumbBuffer(card_, width, height, bits, 0, &memory_, &stride, &size) != 0) {
            return;
        }
        const uint32_t memories[4] = {memory_};
        const uint32_t strides[4] = {stride};
        const uint32_t offsets[4] = {};
        if (drmModeAddFB2(card_, width, height, output.format.code, memories, strides, offsets,
                          &picture_, 0) != 0 ||
            drmModeMapDumbBuffer(card_, memory_, &offset) != 0) {
            return;
        }
        mapping_ = Mapping(card_, static_cast<size_t>(size), static_cast<off_t>(offset));
        stride_ = static_cast<ptrdiff_t>(stride);
    }
    ~DrmBuffer() {
        if (picture_ != 0) {
            drmModeRmFB(card_, picture_);
        }
        if (memory_ != 0) {
            drmModeDestroyDumbBuffer(card_, memory_);
        }
    }
    DrmBuffer(const DrmBuffer&) = delete;
    DrmBuffer& operator=(const DrmBuffer&) = delete;

    explicit operator bool() const { return static_cast<bool>(mapping_); }
    uint32_t picture() const { return picture_; }
    ScreenBuffer memory() const { return {mapping_.start(), stride_}; }

  private:
    int card_;
    uint32_t memory_ = 0;
    uint32_t picture_ = 0;
    ptrdiff_t stride_ = 0;
    Mapping mapping_;
};

class DrmDevice : public ScreenDevice {
  public:
    explicit DrmDevice(DrmOutput output)
        : output_(std::move(output)), before_(drmModeGetCrtc(output_.card.get(), output_.crtc)) {}

    ~DrmDevice() override {
        if (before_ != nullptr && before_->mode_valid != 0) {
            drmModeSetCrtc(output_.card.get(), before_->crtc_id, before_->buffer_id, before_->x,
                           before_->y, &output_.connector, 1, &before_->mode);
        }
    }

    /// False, and errno says why, when there is no memory or somebody else has the screen.
    bool create() {
        constexpr int kBuffers = 2;
        for (int count = 0; count < kBuffers; ++count) {
            pictures_.push_back(std::make_unique<DrmBuffer>(output_));
            if (!*pictures_.back()) {
                return false;
            }
            memory_.push_back(pictures_.back()->memory());
        }
        return setMode(0);
    }

    Size size() const override { return {output_.mode.hdisplay, output_.mode.vdisplay}; }
    ScreenFormat format() const override { return output_.format.format; }
    std::span<const ScreenBuffer> buffers() const override { return memory_; }

    void show(size_t buffer) override {
        flipping_ = drmModePageFlip(output_.card.get(), output_.crtc, pictures_[buffer]->picture(),
                                    DRM_MODE_PAGE_FLIP_EVENT, &flipping_) == 0;
        if (flipping_) {
            waitForFlip();
        } else {
            setMode(buffer);
        }
    }

  private:
    bool setMode(size_t buffer) {
        return drmModeSetCrtc(output_.card.get(), output_.crtc, pictures_[buffer]->picture(), 0, 0,
                              &output_.connector, 1, &output_.mode) == 0;
    }

    void waitForFlip() {
        constexpr int kLostMilliseconds = 1000;
        drmEventContext handlers{};
        handlers.version = 2;
        handlers.page_flip_handler = [](int, unsigned, unsigned, unsigned, void* flipping) {
            *static_cast<bool*>(flipping) = false;
        };
        pollfd card{output_.card.get(), POLLIN, 0};
        while (flipping_ && poll(&card, 1, kLostMilliseconds) > 0) {
            drmHandleEvent(output_.card.get(), &handlers);
        }
    }

    DrmOutput output_;
    DrmCrtc before_;
    std::vector<std::unique_ptr<DrmBuffer>> pictures_;
    std::vector<ScreenBuffer> memory_;
    bool flipping_ = false;
};

} // namespace

std::unique_ptr<ScreenDevice> openDrm(const std::string& path, std::string& failure) {
    auto output = findOutput(path, failure);
    if (!output) {
        return nullptr;
    }
    auto device = std::make_unique<DrmDevice>(std::move(*output));
    if (!device->create()) {
        failure = std::strerror(errno);
        return nullptr;
    }
    return device;
}

} // namespace gpi
