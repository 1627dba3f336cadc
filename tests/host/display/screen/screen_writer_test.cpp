// Frames in the memory of a screen that is made up.
#include "display/screen/screen_writer.h"

#include "display/arrow.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace gpi;
using quarlo::test::Random;
using quarlo::test::testSeed;

constexpr uint8_t kPadding = 0xA5;

/// Some buffers with rows far apart, and what is seen of them.
class MadeUpScreen : public ScreenDevice {
  public:
    MadeUpScreen(Size size, const ScreenFormat& format, size_t buffers, ptrdiff_t padding)
        : size_(size), format_(format), stride_(size.width * format.bytes() + padding) {
        memory_.resize(buffers);
        for (auto& memory : memory_) {
            memory.assign(static_cast<size_t>(stride_ * size.height), kPadding);
            buffers_.push_back({memory.data(), stride_});
        }
    }

    Size size() const override { return size_; }
    ScreenFormat format() const override { return format_; }
    std::span<const ScreenBuffer> buffers() const override { return buffers_; }
    void show(size_t buffer) override {
        shown_ = buffer;
        ++flips_;
    }

    const std::vector<uint8_t>& seen() const { return memory_[shown_]; }
    size_t shown() const { return shown_; }
    int flips() const { return flips_; }

    uint32_t at(int x, int y) const {
        const auto bytes = static_cast<size_t>(format_.bytes());
        const auto first = static_cast<size_t>(y * stride_) + static_cast<size_t>(x) * bytes;
        uint32_t pixel = 0;
        for (size_t index = 0; index < bytes; ++index) {
            pixel |= uint32_t{seen()[first + index]} << (8 * index);
        }
        return pixel;
    }

    bool paddingIsUntouched() const {
        const auto used = static_cast<ptrdiff_t>(size_.width) * format_.bytes();
        for (const auto& memory : memory_) {
            for (ptrdiff_t y = 0; y < size_.height; ++y) {
                const auto row = memory.begin() + y * stride_;
                if (!std::all_of(row + used, row + stride_,
                                 [](uint8_t byte) { return byte == kPadding; })) {
                    return false;
                }
            }
        }
        return true;
    }

  private:
    Size size_;
    ScreenFormat format_;
    ptrdiff_t stride_;
    std::vector<std::vector<uint8_t>> memory_;
    std::vector<ScreenBuffer> buffers_;
    size_t shown_ = 0;
    int flips_ = 0;
};

struct Kind {
    ScreenFormat format;
    size_t buffers;
    ptrdiff_t padding;
    Size screen;
};

class Screen : public testing::TestWithParam<Kind> {
  protected:
    static constexpr int kWidth = 24;
    static constexpr int kHeight = 18;

    /// Changes random areas of the frame.
    void change(int areas) {
        std::vector<GRect> changed;
        for (int count = 0; count < areas; ++count) {
            const auto x = static_cast<int16_t>(random_.bits() % kWidth);
            const auto y = static_cast<int16_t>(random_.bits() % kHeight);
            const GRect area{x, y, static_cast<int16_t>(x + random_.bits() % (kWidth - x)),
                             static_cast<int16_t>(y + random_.bits() % (kHeight - y))};
            for (int row = area.top; row <= area.bottom; ++row) {
                for (int column = area.left; column <= area.right; ++column) {
                    std::generate_n(frame_.at(column, row), 3,
                                    [&] { return static_cast<uint8_t>(random_.bits()); });
                }
            }
            changed.push_back(area);
        }
        frames_.put(frame_, changed);
    }

    /// Writes what has come and shows it. What was seen stays as it was until then.
    void show() {
        const auto before = device_.seen();
        ASSERT_TRUE(frames_.take([&](const FrameExchange::News& news) { writer_.write(news); }));
        if (GetParam().buffers > 1) {
            EXPECT_EQ(device_.seen(), before) << "nothing is written where it is seen";
        }
        writer_.show();
    }

    /// What of the arrow is in a place of the screen.
    char arrowAt(int x, int y) const {
        const GRect arrow = writer_.pointer().arrow();
        return contains(arrow, x, y)
                   ? kArrow[static_cast<size_t>((y - arrow.top) * kArrowWidth + x - arrow.left)]
                   : ' ';
    }

    /// What the screen has to show of the frame, pixel by pixel.
    void expectFrame(const View& view) const {
        const Size screen = device_.size();
        const Projection projection(view, {kWidth, kHeight}, screen);
        const PixelPacker packer(GetParam().format);
        for (int y = 0; y < screen.height; ++y) {
            for (int x = 0; x < screen.width; ++x) {
                const Projection::Pixel from = projection.pixelAt(x, y);
                const uint8_t* const bytes = frame_.at(from.x, from.y);
                uint32_t rgb =
                    from.beside ? 0 : uint32_t{bytes[0]} << 16 | uint32_t{bytes[1]} << 8 | bytes[2];
                const char arrow = arrowAt(x, y);
                rgb = arrow == 'o' ? 0xFFFFFF : arrow == '#' ? 0 : rgb;
                uint32_t expected = 0;
                packer.pack(&rgb, 1, reinterpret_cast<uint8_t*>(&expected));
                ASSERT_EQ(device_.at(x, y), expected) << x << ' ' << y << " seed " << testSeed();
            }
        }
    }

    Random random_{testSeed()};
    Frame frame_{kWidth, kHeight, kFormat24};
    FrameExchange frames_{frame_};
    MadeUpScreen device_{GetParam().screen, GetParam().format, GetParam().buffers,
                         GetParam().padding};
    ScreenWriter writer_{device_, {kWidth, kHeight}};
};

TEST_P(Screen, ShowsEveryFrameWholly) {
    for (int round = 0; round < 100; ++round) {
        change(1 + round % 20);
        if (round % 3 == 0) {
            change(2); // two frames became one
        }
        show();
        expectFrame(View());
    }
    EXPECT_EQ(device_.flips(), 100);
    EXPECT_TRUE(device_.paddingIsUntouched());
}

TEST_P(Screen, ShowsTheViewThatIsSet) {
    change(5);
    show();
    const View view{2, 3, 5, 4};
    frames_.setView(view);
    show();
    expectFrame(view);
    for (int round = 0; round < 20; ++round) {
        change(1);
        show();
        expectFrame(view);
    }
    frames_.setView(View());
    show();
    expectFrame(View());
    EXPECT_TRUE(device_.paddingIsUntouched());
}

TEST_P(Screen, ShowsAnArrowOverTheFrame) {
    ScreenPointer& pointer = writer_.pointer();
    EXPECT_FALSE(writer_.pointerHasMoved());
    for (int round = 0; round < 100; ++round) {
        pointer.moveBy(random_.between(-9, 9), random_.between(-9, 9));
        if (random_.oneIn(2)) {
            change(1);
        }
        frames_.again();
        show();
        EXPECT_FALSE(writer_.pointerHasMoved());
        expectFrame(View());
    }
    pointer.moveTo(0.5, 0.5, false);
    EXPECT_TRUE(writer_.pointerHasMoved()) << "it has gone";
    frames_.again();
    show();
    expectFrame(View());
    EXPECT_TRUE(device_.paddingIsUntouched());
}

TEST(Arrow, IsLargerOnLargeScreens) {
    constexpr Size kFrame{800, 600};
    constexpr Size kScreen{1600, 1200};
    ScreenPointer pointer(Projection(View(), kFrame, kScreen), kFrame, kScreen);
    pointer.moveTo(0.25, 0.5, true);
    EXPECT_TRUE(sameArea(pointer.arrow(),
                         {400, 600, 400 + 2 * kArrowWidth - 1, 600 + 2 * kArrowHeight - 1}));
    uint32_t row[6];
    std::fill(std::begin(row), std::end(row), 0x123456U);
    pointer.draw(605, 399, 6, row); // its third row: an edge, inside, an edge
    EXPECT_EQ(row[0], 0x123456U);
    EXPECT_EQ(row[1], 0U);
    EXPECT_EQ(row[2], 0U);
    EXPECT_EQ(row[3], 0xFFFFFFU);
    EXPECT_EQ(row[4], 0xFFFFFFU);
    EXPECT_EQ(row[5], 0U);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, Screen,
    testing::Values(Kind{{32, 0xFF0000, 0xFF00, 0xFF}, 2, 0, {24, 18}},
                    Kind{{32, 0xFF, 0xFF00, 0xFF0000, 0xFF000000}, 2, 4096, {24, 18}},
                    Kind{{16, 0x1F, 0x7E0, 0xF800}, 1, 2, {24, 18}},
                    Kind{{16, 0xF800, 0x7E0, 0x1F}, 2, 14, {100, 60}},       // four times as large
                    Kind{{24, 0xFF0000, 0xFF00, 0xFF}, 3, 1, {37, 19}},      // with black beside
                    Kind{{32, 0x3FF00000, 0xFFC00, 0x3FF}, 2, 0, {10, 9}})); // made smaller

} // namespace
