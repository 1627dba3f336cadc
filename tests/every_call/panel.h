// What a program works with that calls every function of the library: handles, surfaces, a font,
// records and buffers, each given out wherever a function takes one.
#pragma once

#include "support/recording_platform.h"
#include "support/scripted_font.h"

#include <quarlo/quarlo.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quarlo::test {

/// Where the numbers come from that a program calls with.
class Numbers {
  public:
    virtual ~Numbers() = default;

    /// @param usual what a sensible program would take
    virtual int64_t number(int64_t usual) { return usual; }
};

/// Opens a draw handle and makes a surface as its platform allows, and takes all back at its end,
/// also what the library keeps for the process: typed blocks, timers, events, saved clips.
class Panel {
  public:
    explicit Panel(RecordingPlatform& platform, Numbers& numbers);
    ~Panel();
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    /// Whether the platform let a handle open: without one there is nothing to draw with.
    bool hasHandle() const { return handle_ != nullptr; }
    GDrawHandle* handle() { return handle_; }

    int64_t number(int64_t usual) { return numbers_.number(usual); }
    template <typename Number>
    Number number(int64_t usual) {
        return static_cast<Number>(number(usual));
    }

    /// Makes room for the arguments of a call.
    void startCall();

    // Arguments by their type, which a null pointer tells. They live until the next call.

    GDrawHandle* pointer(const GDrawHandle*) { return handle_; }
    GVram* pointer(const GVram*) { return surfaces_.empty() ? nullptr : surfaces_.back(); }
    GFontRecord* pointer(const GFontRecord*) { return font_.get(); }
    GPoint* pointer(const GPoint*);
    GRect* pointer(const GRect*); ///< the first of four
    GLine* pointer(const GLine*);
    GPoly* pointer(const GPoly*); ///< four points
    GBrush* pointer(const GBrush*);
    GGradationInfo* pointer(const GGradationInfo*);
    GBorderStyle* pointer(const GBorderStyle*);
    GCaptionAttr* pointer(const GCaptionAttr*);
    GCaptionCursor* pointer(const GCaptionCursor*);
    GCaptionSelect* pointer(const GCaptionSelect*);
    GSystemTime* pointer(const GSystemTime*);
    GDirtyRectList* pointer(const GDirtyRectList*) { return &dirty_; }
    GGrfImage* pointer(const GGrfImage*) { return &image_; }
    GGrfImage* const* pointer(GGrfImage* const*) { return &imagePointer_; }
    const uint8_t* pointer(const uint8_t*); ///< a GRF stream, or eight rows of a pattern
    const char16_t* pointer(const char16_t*) { return text_.c_str(); }
    char16_t* pointer(char16_t*) { return static_cast<char16_t*>(room()); }
    const char* pointer(const char*) { return "Overtravel X+"; }
    char* pointer(char*) { return static_cast<char*>(room()); }
    GUBCompare pointer(GUBCompare);

    /// Of every other type: zeros.
    template <typename Value>
    Value* pointer(const Value*) {
        return static_cast<Value*>(room());
    }

    GEventMsg event();

    // What calls make, and others take away again. The last of each is the one that is given out.

    void openHandle(GWord first, GWord second);
    void closeHandle();
    void addSurface(GVram* surface);
    void deleteSurface();
    void attachSurface(int16_t id); ///< the handle then owns it
    void allocate(int32_t size);
    void reallocate(int32_t size);
    void free();
    void createTypedBlock(const char16_t* name, int32_t size);
    void* typedBlock() { return typedBlocks_.empty() ? nullptr : typedBlocks_.back(); }
    void deleteTypedBlock();
    void setTimer(uint32_t target, uint16_t id, uint32_t interval);

  private:
    static constexpr int32_t kSpace = 20; ///< that none but programs take memory from

    void* room();
    template <typename Record>
    Record* keep(const Record& record);
    void closeOwnHandle();

    Numbers& numbers_;
    ScriptedFont font_;
    GDrawHandle* handle_;

    struct alignas(std::max_align_t) Room {
        std::array<uint8_t, 0x4000> bytes;
    };
    std::array<Room, 8> rooms_{};
    size_t roomsUsed_ = 0;

    GDirtyRectList dirty_{};
    std::array<GPoint, 4> points_{};
    GGrfImage image_{};
    GGrfImage* imagePointer_ = &image_;
    std::u16string text_ = u"A line\nand a second one";

    std::vector<GVram*> surfaces_;
    std::vector<GDrawHandle*> moreHandles_;
    std::vector<void*> blocks_;
    std::vector<void*> typedBlocks_;
    std::vector<std::pair<uint32_t, uint16_t>> timers_;
};

} // namespace quarlo::test
