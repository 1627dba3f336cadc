#include "raster/random_drawing.h"

#include "raster/pixel_ops.h"

#include <quarlo/platform.h>

#include <memory>
#include <sstream>
#include <utility>

namespace quarlo::test {

namespace {

constexpr int kRounds = 60;
constexpr int32_t kCalls = 24;

struct Size {
    int16_t width;
    int16_t height;
    int16_t padding;
};

constexpr Size kSizes[] = {{1, 1, 0}, {9, 5, 2}, {40, 24, 0}, {67, 33, 7}};

struct Scene {
    Size size;
    int16_t bitsPerPixel;
    Through through;

    bool onDevice() const { return through == Through::Device || through == Through::BareDevice; }
};

std::ostream& operator<<(std::ostream& out, const Scene& scene) {
    constexpr const char* kNames[] = {"kernels", "copied operations", "a device",
                                      "a device without rectangles"};
    return out << "on " << scene.size.width << " x " << scene.size.height << " pixels of "
               << scene.bitsPerPixel << " bits with " << scene.size.padding
               << " bytes behind each row, through " << kNames[static_cast<int>(scene.through)];
}

/// The library's side of a comparison, on a surface that starts with noise.
class Subject {
  public:
    explicit Subject(const Scene& scene) : scene_(scene) {
        RecordingPlatform& platform = RecordingPlatform::current();
        platform.recordOperations(false);
        for (const int service : {67, 68, 70}) {
            if (scene.through == Through::BareDevice) {
                platform.remove({service});
            } else {
                platform.restore(service);
            }
        }
        GetGPIFunction();
        const auto& [width, height, padding] = scene.size;
        const auto side = scene.bitsPerPixel == 16 ? Against::Start : Against::End;
        if (scene.onDevice()) {
            drawing_ =
                std::make_unique<DeviceDrawing>(width, height, scene.bitsPerPixel, side, padding);
        } else {
            drawing_ = std::make_unique<Drawing>(width, height, scene.bitsPerPixel, side, padding);
        }
        GuardedMemory& memory = drawing_->surface().memory();
        for (size_t i = 0; i < memory.size(); ++i) {
            memory.data()[i] = static_cast<uint8_t>(i * 151 + i / 7);
        }
        for (PixelCell& cell : pixelCells) {
            cell = {};
        }
    }

    GDrawHandle* handle() { return *drawing_; }
    GuardedMemory& memory() { return drawing_->surface().memory(); }

    DrawResult makeCall(const DrawCall& call) {
        if (scene_.through == Through::CopiedOps) {
            copied_.attach(handle());
        }
        return make(call, handle());
    }

    Model::Cell cell(size_t i) {
        const PixelCell& cell = pixelCells[i];
        return {cell.color, cell.cursor == nullptr ? -1 : cell.cursor - memory().data()};
    }

  private:
    Scene scene_;
    std::unique_ptr<Drawing> drawing_;
    CopiedOps copied_;
};

template <typename Value>
void tell(std::ostringstream& text, const char* what, const Value& actual, const Value& expected) {
    if (actual != expected) {
        text << ' ' << what << " is " << actual << ", not " << expected << ';';
    }
}

void tellBytes(std::ostringstream& text, Subject& subject, const Model& model) {
    const uint8_t* const data = subject.memory().data();
    size_t different = 0;
    for (size_t i = 0; i < model.bytes.size(); ++i) {
        if (data[i] != model.bytes[i] && different++ == 0) {
            const auto row = static_cast<size_t>(model.surface.bytesPerLine);
            text << " byte " << i % row << " of row " << i / row << " is " << std::hex << +data[i]
                 << ", not " << +model.bytes[i] << std::dec << ';';
        }
    }
    if (different > 1) {
        text << ' ' << different << " bytes differ;";
    }
    if (!subject.memory().intact()) {
        text << " bytes beside the surface were written;";
    }
}

/// What is wrong after the calls; an empty text if nothing is.
std::string difference(const Scene& scene, const std::vector<DrawCall>& calls) {
    Subject subject(scene);
    Model model(*subject.handle());
    std::ostringstream text;
    for (const DrawCall& call : calls) {
        const DrawResult result = subject.makeCall(call);
        const DrawResult expected = make(call, model);
        if (result != expected) {
            text << " the last call gave " << result[0] << ", not " << expected[0]
                 << ", or another line;";
            break;
        }
    }
    tellBytes(text, subject, model);
    const GDrawHandle& handle = *subject.handle();
    tell(text, "penPos.x", handle.penPos.x, model.handle.penPos.x);
    tell(text, "penPos.y", handle.penPos.y, model.handle.penPos.y);
    tell(text, "dashPhase", handle.dashPhase, model.handle.dashPhase);
    for (size_t i = 0; i < 3; ++i) {
        tell(text, "the colour cell", subject.cell(i).color, model.cells[i].color);
        tell(text, "the cursor", subject.cell(i).cursor, model.cells[i].cursor);
    }
    if (text.str().empty()) {
        return {};
    }
    std::ostringstream place;
    place << scene << ':' << text.str();
    return place.str();
}

/// Draws calls from a mix, for surfaces of about the largest size.
class CallMaker {
  public:
    explicit CallMaker(const DrawMix& mix) : mix_(mix) {}

    DrawCall operator()(Random& random) const {
        return random.oneIn(2) ? drawing(random) : setting(random, setter(random));
    }

  private:
    static int32_t color(Random& random) {
        return random.oneIn(6) ? -1 : static_cast<int32_t>(random.bits());
    }

    static int32_t number(Random& random) { return static_cast<int32_t>(random.bits()); }

    /// One in four says where the shapes lie.
    DrawCall::Kind setter(Random& random) const {
        return random.pick(random.oneIn(4) || mix_.setters.empty() ? kPlaceSetters : mix_.setters);
    }

    DrawCall drawing(Random& random) const {
        DrawCall call{random.pick(mix_.drawing), {}};
        for (size_t i = 0; i < 4; ++i) {
            call.arguments[i] = random.coordinate(-12, 80);
        }
        if (call.kind >= DrawCall::Oval) {
            call.arguments[4] = number(random);
        }
        if (hasBox(call) && !random.oneIn(8)) {
            sort(call.arguments[0], call.arguments[2]);
            sort(call.arguments[1], call.arguments[3]);
        }
        if (call.kind == DrawCall::DrawLine && random.oneIn(4)) {
            makeStraight(random, call);
        }
        return call;
    }

    static bool hasBox(const DrawCall& call) {
        return call.kind == DrawCall::DrawRect || call.kind >= DrawCall::Oval;
    }

    static void sort(int32_t& a, int32_t& b) {
        if (a > b) {
            std::swap(a, b);
        }
    }

    /// Along an axis, or without length.
    static void makeStraight(Random& random, DrawCall& call) {
        const int32_t axes = random.between(1, 3);
        if ((axes & 1) != 0) {
            call.arguments[2] = call.arguments[0];
        }
        if ((axes & 2) != 0) {
            call.arguments[3] = call.arguments[1];
        }
    }

    DrawCall setting(Random& random, DrawCall::Kind kind) const {
        switch (kind) {
        case DrawCall::PenColor:
            return {kind, {color(random)}};
        case DrawCall::FillColor:
            return {kind, {color(random), color(random)}};
        case DrawCall::FillPattern:
            return {kind, {random.oneIn(2) ? random.between(0, 40) : random.between(-5, -1)}};
        case DrawCall::DrawingMode:
            return {kind, {mode(random)}};
        case DrawCall::Dash:
            return dash(random);
        case DrawCall::DashPhase:
            return {kind, {random.oneIn(4) ? number(random) : random.between(0, 63)}};
        case DrawCall::DefineDash:
            return {kind, {random.between(0, 10), number(random), number(random)}};
        case DrawCall::DefinePattern:
            return {kind, {random.between(0, 37), number(random), number(random)}};
        case DrawCall::Gradation:
            return gradation(random);
        case DrawCall::LocalMode:
            return {kind, {random.coordinate(-20, 20), random.coordinate(-20, 20)}};
        case DrawCall::VirtualMode:
            return virtualMode(random);
        default:
            return {kind,
                    {random.between(-5, 30), random.between(-5, 20), random.between(0, 80),
                     random.between(0, 40)}};
        }
    }

    int32_t mode(Random& random) const {
        return random.oneIn(6) ? random.pick(mix_.wildModes) : random.between(0, 3);
    }

    /// A wide pen only with a dash.
    static DrawCall dash(Random& random) {
        const int32_t number =
            random.oneIn(12) ? random.pick({-1, 10, 300, -32768}) : random.between(0, 9);
        const int32_t largest = number == 0 || random.oneIn(2) ? 1 : 9;
        return {DrawCall::Dash, {number, random.between(0, largest), random.between(0, largest)}};
    }

    static DrawCall gradation(Random& random) {
        const int32_t lead = random.oneIn(2) ? 0 : random.between(0, random.oneIn(8) ? 65535 : 110);
        const int32_t steps = random.oneIn(8) ? random.between(0, 65535) : random.between(0, 20);
        return {DrawCall::Gradation,
                {random.oneIn(10) ? random.between(2, 255) : random.between(0, 1), number(random),
                 number(random), lead, steps}};
    }

    static DrawCall virtualMode(Random& random) {
        const int32_t left = random.between(-30, 30);
        const int32_t top = random.between(-30, 30);
        return {DrawCall::VirtualMode,
                {left, top, left + random.between(-5, 200), top + random.between(-5, 200)}};
    }

    const DrawMix& mix_;
};

/// Checks lists of calls on surfaces of every format and size.
template <typename Check>
void forEachScene(const DrawMix& mix, Through through, Check check) {
    uint64_t salt = static_cast<uint64_t>(through) << 32;
    for (const int16_t bits : kDepths) {
        for (const Size& size : kSizes) {
            const Scene scene{size, bits, through};
            const auto make = [&, salt = ++salt](Random& source) {
                Random random(source.bits() ^ salt);
                return randomCall(mix, random);
            };
            forRandomCalls(kRounds, kCalls, make,
                           [&](const std::vector<DrawCall>& calls) -> std::string {
                               return check(scene, calls);
                           });
            if (testing::Test::HasFatalFailure()) {
                return;
            }
        }
    }
}

} // namespace

DrawCall randomCall(const DrawMix& mix, Random& random) {
    return CallMaker(mix)(random);
}

void expectLikeModel(const DrawMix& mix, Through through) {
    forEachScene(mix, through, difference);
}

void expectLikeModel(const DrawMix& mix) {
    for (const Through through :
         {Through::Kernels, Through::CopiedOps, Through::Device, Through::BareDevice}) {
        expectLikeModel(mix, through);
    }
}

void expectWithinMemory(const DrawMix& mix, const std::function<void(GVram&)>& distort) {
    forEachScene(mix, Through::Kernels, [&](const Scene& scene, const auto& calls) {
        Subject subject(scene);
        distort(*subject.handle()->target);
        for (const DrawCall& call : calls) {
            subject.makeCall(call);
        }
        return subject.memory().intact() ? "" : "bytes beside the surface were written";
    });
}

} // namespace quarlo::test
