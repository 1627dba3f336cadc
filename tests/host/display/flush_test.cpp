// What becomes visible, and when: the picture file stands for the screen.
#include "support/png_reader.h"
#include "support/started_platform.h"

#include <gpi/host.h>

#include <gtest/gtest.h>

namespace {

using namespace gpi::test;

const auto flush = service<GPIFlush>(GPI_SERVICE_FLUSH);
const auto flushForce = service<GPIFlushForce>(GPI_SERVICE_FLUSH_FORCE);
const auto fillRect = service<GPIFillRect>(GPI_SERVICE_FILL_RECT);
const auto showPage = service<GPIChangeVirtualSurface>(GPI_SERVICE_CHANGE_VIRTUAL_SURFACE);
const auto setPalette = service<GPISetPalette>(GPI_SERVICE_SET_PALETTE);

constexpr uint32_t kRed = 0xFF0000;
constexpr uint32_t kBlue = 0x0000FF;

class Flush : public testing::Test {
  protected:
    /// What the display shows now.
    PngPicture shown() const {
        EXPECT_EQ(GPIHostWritePng(folder_.path("shown.png").c_str()), 1);
        return readPng(folder_.path("shown.png"));
    }

    /// Fills a page in a pixel value of the 24-bit format, in which red comes first.
    static void paint(int32_t number, uint32_t rgb) {
        GVram* const page = StartedPlatform::surface(number);
        const uint32_t pixel = (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
        fillRect(nullptr, page, &page->bounds, pixel, G_MODE_COPY);
    }

    TemporaryFolder folder_;
    StartedPlatform platform_{
        {"QUARLO_FORMAT", "24"}, {"QUARLO_WIDTH", "8"}, {"QUARLO_HEIGHT", "6"}};
};

TEST_F(Flush, ShowsItsRectangleAndNothingElse) {
    for (const auto show : {flush, flushForce}) {
        paint(0, 0);
        flush(nullptr, 0, 0, 8, 6);
        paint(0, kRed);
        EXPECT_EQ(show(nullptr, 2, 1, 3, 2), 1);
        const PngPicture picture = shown();
        for (int y = 0; y < 6; ++y) {
            for (int x = 0; x < 8; ++x) {
                const bool flushed = x >= 2 && x <= 4 && y >= 1 && y <= 2;
                EXPECT_EQ(picture.at(x, y), flushed ? kRed : 0U) << x << ' ' << y;
            }
        }
    }
}

TEST_F(Flush, IsCutToTheDisplay) {
    paint(0, kRed);
    EXPECT_EQ(flush(nullptr, -30000, -30000, 30002, 30001), 1);
    const PngPicture picture = shown();
    EXPECT_EQ(picture.at(1, 0), kRed);
    EXPECT_EQ(picture.at(2, 0), 0U);
    EXPECT_EQ(picture.at(1, 1), 0U);
    EXPECT_EQ(flush(nullptr, 7, 5, INT16_MAX, INT16_MAX), 1);
    EXPECT_EQ(shown().at(7, 5), kRed);
    EXPECT_EQ(shown().at(6, 5), 0U);
}

TEST_F(Flush, RefusesWhatLiesBeside) {
    EXPECT_EQ(flush(nullptr, 8, 0, 5, 5), 0);
    EXPECT_EQ(flush(nullptr, 0, 6, 5, 5), 0);
    EXPECT_EQ(flush(nullptr, -5, 0, 5, 5), 0);
    EXPECT_EQ(flush(nullptr, 0, 0, 0, 5), 0);
    EXPECT_EQ(flushForce(nullptr, 0, 0, 5, -5), 0);
    EXPECT_EQ(flushForce(nullptr, INT16_MAX, INT16_MAX, INT16_MAX, INT16_MAX), 0);
    EXPECT_EQ(flushForce(nullptr, INT16_MIN, INT16_MIN, INT16_MIN, INT16_MIN), 0);
}

TEST_F(Flush, TakesFromThePageThatIsShown) {
    paint(0, kRed);
    paint(2, kBlue);
    flush(nullptr, 0, 0, 8, 6);
    EXPECT_EQ(shown().at(0, 0), kRed);
    ASSERT_EQ(showPage(2, 0), 1U);
    EXPECT_EQ(shown().at(7, 5), kBlue);
    paint(2, 0x123456);
    paint(0, 0x654321);
    flush(nullptr, 0, 0, 1, 1);
    EXPECT_EQ(shown().at(0, 0), 0x123456U);
    EXPECT_EQ(shown().at(1, 0), kBlue);
    ASSERT_EQ(showPage(0, 0), 1U);
    EXPECT_EQ(shown().at(7, 5), 0x654321U);
}

TEST_F(Flush, MessagesOfAnyKindAreTakenCalmly) {
    GMessage message{};
    for (const uint32_t number : {0U, uint32_t{G_MESSAGE_PAINT}, uint32_t{G_MESSAGE_QUIT}, ~0U}) {
        message.number = number;
        GPITranslateMessage(&message);
        EXPECT_EQ(message.number, number);
        GPIDispatchMessage(&message);
    }
    GPITranslateMessage(nullptr);
    GPIDispatchMessage(nullptr);
    EXPECT_EQ(shown().at(0, 0), 0U);
}

TEST(PaletteChange, ShowsAtOnceAndShowsNothingElse) {
    const TemporaryFolder folder;
    const StartedPlatform platform{{"QUARLO_FORMAT", "8"}, {"QUARLO_WIDTH", "2"}};
    GVram* const page = platform.surface();
    fillRect(nullptr, page, &page->bounds, 7, G_MODE_COPY);
    flush(nullptr, 0, 0, 1, 1);
    fillRect(nullptr, page, &page->bounds, 9, G_MODE_COPY);
    const uint32_t color = 0xABCDEF;
    ASSERT_EQ(setPalette(nullptr, 7, 1, &color), 1U);
    ASSERT_EQ(GPIHostWritePng(folder.path("shown.png").c_str()), 1);
    const PngPicture picture = readPng(folder.path("shown.png"));
    EXPECT_EQ(picture.at(0, 0), 7U);
    EXPECT_EQ(picture.at(1, 0), 0U);
    EXPECT_EQ(picture.colors[7], 0xABCDEFU);
}

} // namespace
