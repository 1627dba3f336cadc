// The part programs that come with the project do what their README says.
#include "program_file.h"
#include "traced.h"

#include <algorithm>
#include <map>

namespace toolpath {
namespace {

/// A shipped program's text and path. None of its words may be left out.
struct Shipped {
    explicit Shipped(const std::string& name) {
        std::string reason;
        const auto read = readProgramFile((TOOLPATH_PROGRAMS "/" + name + ".nc").c_str(), reason);
        EXPECT_TRUE(read) << reason;
        text = read.value_or("");
        const Traced traced = trace(text);
        path = traced.path;
        for (const Remark& remark : traced.remarks.list()) {
            ADD_FAILURE() << name << " line " << remark.line << ": " << remark.text;
        }
        EXPECT_NE(text.find("WRITTEN FOR THIS PROJECT"), std::string::npos);
    }

    /// How many holes are drilled to which depth, in micrometres.
    std::map<long, int> holes() const {
        std::map<long, int> depths;
        for (const Move& move : path.moves) {
            if (move.kind == MoveKind::Point) {
                ++depths[std::lround(move.end[kZ] * 1000.0)];
            }
        }
        return depths;
    }

    std::string text;
    ToolPath path;
};

/// Rapids that go down to or along the part at full speed.
int rapidsInMaterial(const ToolPath& path, double top) {
    int count = 0;
    Point3 from = path.start;
    for (const Move& move : path.moves) {
        const bool sideways = from[kX] != move.end[kX] || from[kY] != move.end[kY];
        count += move.kind == MoveKind::Rapid && sideways && from[kZ] < top ? 1 : 0;
        from = move.end;
    }
    return count;
}

TEST(ShippedPrograms, BearingCoverIsWhole) {
    const Shipped cover("bearing_cover");
    EXPECT_EQ(cover.holes(), (std::map<long, int>{
                                 {-23000, 4}, {-18000, 6}, {-14000, 6}, {-9000, 4}, {-2000, 10}}));
    const Box3 box = machinedBox(cover.path);
    EXPECT_EQ(box.low, (Point3{-5, -15, -23}));
    EXPECT_EQ(box.high, (Point3{105, 135, 4}));
    EXPECT_EQ(rapidsInMaterial(cover.path, 0.5), 0);
}

TEST(ShippedPrograms, LensMouldIsWhole) {
    const Shipped mould("lens_mould");
    EXPECT_EQ(mould.holes(), (std::map<long, int>{{-34000, 6}}));
    // The cap's top and the dish's bottom lie on spheres of radius 46 over rims of radius 42.
    const double rise = 46.0 - std::sqrt(46.0 * 46.0 - 42.0 * 42.0);
    const Box3 box = machinedBox(mould.path);
    EXPECT_NEAR(box.high[kZ], rise, 0.02);
    EXPECT_EQ(rapidsInMaterial(mould.path, 0.5), 0);
    const bool dishIsWhole =
        std::any_of(mould.path.moves.begin(), mould.path.moves.end(), [rise](const Move& move) {
            return std::hypot(move.end[kX], move.end[kY] + 46.0) < 2.0 && move.end[kZ] < 0.1 - rise;
        });
    EXPECT_TRUE(dishIsWhole);
}

TEST(ShippedPrograms, LensMouldCutsTheCapOnItsSphere) {
    const Shipped mould("lens_mould");
    const double centre = -std::sqrt(46.0 * 46.0 - 42.0 * 42.0);
    int onTheCap = 0;
    for (const Move& move : mould.path.moves) {
        const double toAxis = std::hypot(move.end[kX], move.end[kY] - 46.0);
        if (move.kind == MoveKind::Cut && toAxis < 41.9 && move.end[kZ] > 0.5) {
            EXPECT_NEAR(std::hypot(toAxis, move.end[kZ] - centre), 46.0, 0.01);
            ++onTheCap;
        }
    }
    EXPECT_GT(onTheCap, 1000);
}

TEST(ShippedPrograms, StarFlangeIsWhole) {
    const Shipped star("star_flange");
    EXPECT_EQ(star.path.unit, 25.4);
    EXPECT_EQ(star.holes(), (std::map<long, int>{{-15240, 6}, {-10160, 22}}));
    EXPECT_EQ(rapidsInMaterial(star.path, 0.5), 0);
    for (const char* word : {"G91", "R-", "L11", "G20"}) {
        EXPECT_NE(star.text.find(word), std::string::npos) << word;
    }
}

} // namespace
} // namespace toolpath
