#include "image/grf_test.h"

#include <algorithm>

using namespace quarlo::test;

namespace {

class GrfZoom : public RasterTest {
  protected:
    GrfZoom() { platform.recordOperations(false); }

    static void zoom(GDrawHandle* handle, int16_t width, int16_t height,
                     const std::vector<uint8_t>& bytes, const GRect& box) {
        const GGrfImage image{G_GRF_DIRECT, width, height, 8, 0, nullptr, nullptr};
        const ExactStream stream(bytes);
        GDDrawGrfZoom(handle, &image, stream.data(), box.left, box.top,
                      static_cast<int16_t>(box.right - box.left + 1),
                      static_cast<int16_t>(box.bottom - box.top + 1));
    }
};

constexpr uint8_t kLiteral = 0x40;
constexpr uint8_t kFill = 0xC0;

TEST_F(GrfZoom, RepeatsRowsAndColumns) {
    Drawing drawing(6, 4);
    zoom(drawing, 3, 2, {kLiteral | 3, 1, 2, 3, kFill | 3, 4, 0}, {0, 0, 5, 3});
    // A run ends on the first column that its last value maps to.
    EXPECT_TRUE(shows(*drawing.surface(), {"aabbc.", "aabbc.", "ddddd.", "ddddd."},
                      {{'.', 0}, {'a', 1}, {'b', 2}, {'c', 3}, {'d', 4}}));
}

TEST_F(GrfZoom, StretchesOneRunOverHundredsOfColumns) {
    for (const GrfThrough through : {GrfThrough::Kernels, GrfThrough::CopiedOps}) {
        Drawing drawing(300, 1);
        CopiedOps ops;
        if (through == GrfThrough::CopiedOps) {
            ops.attach(drawing);
        }
        zoom(drawing, 3, 1, {kLiteral | 3, 4, 5, 6, 0}, {0, 0, 299, 0});
        for (int32_t x = 0; x < 300; ++x) {
            // The run ends on the first column of its last value.
            const uint32_t value = x < 100 ? 4 : (x < 200 ? 5 : (x == 200 ? 6 : 0));
            ASSERT_EQ(pixelAt(*drawing.surface(), x, 0), value) << "column " << x;
        }
    }
}

TEST_F(GrfZoom, PrefersValuesThatAreNot0WhenItShrinks) {
    Drawing drawing(3, 1);
    zoom(drawing, 6, 1, {kLiteral | 6, 0, 5, 6, 7, 0, 0, 0}, {0, 0, 2, 0});
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 0), 5U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 1, 0), 6U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 2, 0), 0U);
}

TEST_F(GrfZoom, KeepsThreeBitsOfAByte) {
    Drawing drawing(2, 1);
    zoom(drawing, 2, 1, {kFill | 2, 0xFD, 0}, {0, 0, 1, 0});
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 0), 5U);
}

TEST_F(GrfZoom, WithoutSizeIsDrawnAsItIs) {
    Drawing drawing(4, 1);
    const GGrfImage image{G_GRF_DIRECT, 2, 1, 8, 0, nullptr, nullptr};
    const ExactStream stream({kFill | 2, 0xFD, 0});
    EXPECT_EQ(GDDrawGrfZoom(drawing, &image, stream.data(), 1, 0, 0, 5), 1);
    EXPECT_TRUE(shows(*drawing.surface(), {".##."}));
    EXPECT_EQ(pixelAt(*drawing.surface(), 1, 0), 0xFDU);
}

/// The runs of one source row, with the columns and values of each.
struct SourceRun {
    int32_t first;
    int32_t last;
    bool fill;
    std::vector<uint32_t> values; ///< one for a fill
};

using SourceRows = std::vector<std::vector<SourceRun>>;

SourceRows sourceRows(const GrfCase& call) {
    SourceRows rows(static_cast<size_t>(call.height));
    int32_t position = 0;
    const int32_t most = call.width * call.height;
    for (size_t at = 0; position < most && call.stream[at] != 0;) {
        const uint8_t control = call.stream[at++];
        const int32_t kind = control >> 6;
        int32_t count = control & 0x3F;
        if (kind == 2) {
            continue;
        }
        size_t unit = at;
        at += static_cast<size_t>(kind == 1 ? count : 1);
        while (count > 0 && position < most) {
            const int32_t column = position % call.width;
            const int32_t part = std::min(count, call.width - column);
            SourceRun run{column, column + part - 1, kind == 3, {}};
            for (int32_t i = 0; i < (kind == 3 ? 1 : part) && kind != 0; ++i) {
                run.values.push_back(call.stream[unit + static_cast<size_t>(i)] & 7U);
            }
            unit += static_cast<size_t>(kind == 1 ? part : 0);
            if (kind != 0) {
                rows[static_cast<size_t>(position / call.width)].push_back(run);
            }
            position += part;
            count -= part;
        }
    }
    return rows;
}

/// One destination row from one source row.
void zoomRow(GuardedSurface& surface, const GRect& clip, const GrfCase& call,
             const std::vector<SourceRun>& runs, int32_t y) {
    const auto columnOf = [&call](int32_t source) {
        return call.x + source * call.boxWidth / call.width;
    };
    const int32_t edge = call.x + call.boxWidth - 1;
    int32_t drawn = -1;
    for (const SourceRun& run : runs) {
        int32_t from = columnOf(run.first);
        int32_t to = columnOf(run.last);
        if (from >= 0 && from <= drawn) {
            from = drawn + 1;
            to = std::max(to, from);
        }
        to = std::min(to, edge);
        if (from > to) {
            continue;
        }
        drawn = to;
        for (int32_t column = from; column <= to; ++column) {
            uint32_t value = run.values[0];
            if (!run.fill) {
                uint32_t before = value;
                bool exact = false;
                uint32_t found = 0;
                for (int32_t source = run.first; source <= run.last; ++source) {
                    const uint32_t here = run.values[static_cast<size_t>(source - run.first)];
                    before = columnOf(source) <= column ? here : before;
                    if (columnOf(source) == column) {
                        exact = true;
                        found = found != 0 ? found : here;
                    }
                }
                value = exact ? found : before;
            }
            plotByModel(surface, clip, column, y, value, call.mode);
        }
    }
}

void zoomByModel(GuardedSurface& surface, const GRect& clip, const GrfCase& call) {
    const SourceRows rows = sourceRows(call);
    int32_t row = 0;
    int32_t error = -call.boxHeight;
    for (int32_t y = 0; y < call.boxHeight; ++y) {
        zoomRow(surface, clip, call, rows[static_cast<size_t>(row)], call.y + y);
        for (error += 2 * call.height; error > 0; error -= 2 * call.boxHeight) {
            row = std::min(row + 1, call.height - 1);
        }
    }
}

GrfCase randomZoom(Random& random) {
    GrfCase call;
    call.type = 1;
    call.palette = false;
    call.bits = 8;
    call.width = static_cast<int16_t>(random.between(1, 30));
    call.height = static_cast<int16_t>(random.between(1, 12));
    call.stream = randomStream(random, call.width * call.height, 1);
    call.x = static_cast<int16_t>(random.between(-12, 40));
    call.y = static_cast<int16_t>(random.between(-8, 30));
    call.boxWidth = static_cast<int16_t>(random.between(1, 60));
    call.boxHeight = static_cast<int16_t>(random.between(1, 40));
    call.mode = random.between(0, 3);
    return call;
}

TEST_F(GrfZoom, IsDrawnAsByAPlainModel) {
    for (const int16_t depth : kDepths) {
        for (const GrfThrough through :
             {GrfThrough::Kernels, GrfThrough::CopiedOps, GrfThrough::Device}) {
            forRandomCalls(500, 1, randomZoom, [&](const auto& calls) -> std::string {
                return calls.empty()
                           ? ""
                           : grfDifference(calls[0], through, depth, GDDrawGrfZoom, zoomByModel);
            });
        }
    }
}

TEST_F(GrfZoom, PaintsEachPixelOnce) {
    platform.countPaint();
    forRandomCalls(1000, 1, randomZoom, [&](auto calls) -> std::string {
        if (calls.empty()) {
            return "";
        }
        calls[0].mode = kCountingMode;
        return grfDifference(calls[0], GrfThrough::Device, 8, GDDrawGrfZoom, zoomByModel);
    });
}

TEST_F(GrfZoom, ToAnyBoxEndsSoon) {
    Random random(testSeed());
    std::vector<uint8_t> stream;
    for (int i = 0; i < 40; ++i) {
        stream.insert(stream.end(), {0xFF, 3});
    }
    stream.push_back(0);
    for (int round = 0; round < 200; ++round) {
        Drawing drawing(kGrfWidth, kGrfHeight, 16);
        const GGrfImage image{
            1, random.coordinate(1, 60), random.coordinate(1, 40), 8, 0, nullptr, nullptr};
        const ExactStream exact(stream);
        GDDrawGrfZoom(drawing, &image, exact.data(), random.coordinate(-50, 50),
                      random.coordinate(-50, 50), random.coordinate(1, 200),
                      random.coordinate(1, 200));
        EXPECT_TRUE(drawing.surface().memory().intact());
    }
}

} // namespace
