// The part programs that come with the panel, run to their ends.
#include "bench.h"

#include "gcode/program_lines.h"
#include "model/path_tracer.h"
#include "program_file.h"

namespace gpi::nc::test {
namespace {

class ShippedProgram : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(All, ShippedProgram,
                         testing::Values("bearing_cover", "lens_mould", "star_flange"),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(ShippedProgram, EndsWhereItsDrawingEndsInsideItsBox) {
    std::string reason;
    const std::string path = std::string(PANEL_PROGRAMS "/") + GetParam() + ".nc";
    const auto text = toolpath::readProgramFile(path.c_str(), reason);
    ASSERT_TRUE(text) << reason;
    toolpath::Remarks remarks;
    const toolpath::ToolPath drawn = toolpath::tracePath(*text, remarks);
    toolpath::Box3 box{drawn.start, drawn.start};
    for (const auto& move : drawn.moves) {
        for (size_t axis = 0; axis < 3; ++axis) {
            box.low[axis] = std::min(box.low[axis], move.end[axis]);
            box.high[axis] = std::max(box.high[axis], move.end[axis]);
        }
    }

    Bench bench(Bench::kReady);
    bench.start(*text);
    toolpath::Box3 seen{drawn.start, drawn.start};
    bench.waitWhile([&] {
        const Point3 place = bench.place();
        for (size_t axis = 0; axis < 3; ++axis) {
            seen.low[axis] = std::min(seen.low[axis], place[axis]);
            seen.high[axis] = std::max(seen.high[axis], place[axis]);
        }
        return bench.state() == G_NC_STATE_RUNNING;
    });
    EXPECT_EQ(bench.state(), G_NC_STATE_IDLE) << bench.system(G_NC_SYSTEM_ALARMS);
    for (size_t axis = 0; axis < 3; ++axis) {
        EXPECT_NEAR(bench.place()[axis], drawn.end()[axis], 1e-9);
        // The drawing has chords; the machine goes round, and looks only once a millisecond.
        EXPECT_NEAR(seen.low[axis], box.low[axis], 0.1);
        EXPECT_NEAR(seen.high[axis], box.high[axis], 0.1);
    }
}

} // namespace
} // namespace gpi::nc::test
