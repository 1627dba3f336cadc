// Pictures as rows of letters, so that a test shows what it expects without being run.
#pragma once

#include <quarlo/surface.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace quarlo::test {

/// What each letter of a picture stands for.
using Letters = std::map<char, uint32_t>;

/// Rows of letters, top row first.
struct Picture {
    std::vector<std::string> rows;

    bool operator==(const Picture&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Picture& picture);

/// The picture of a surface. Without letters '.' is a pixel of value 0 and '#' any other; with
/// letters a pixel value that has none shows as '?'.
Picture pictureOf(const GVram& surface, const Letters& letters = {});

/// Whether a surface shows just the given rows; if not, both are printed beside each other, rows
/// that differ marked.
///
///     EXPECT_TRUE(shows(*surface, {"..#",
///                                  ".#.",
///                                  "#.."}));
testing::AssertionResult shows(const GVram& surface, const std::vector<std::string>& rows,
                               const Letters& letters = {});

/// Whether two pictures are the same; if not, both are printed like those of shows().
testing::AssertionResult samePicture(const Picture& actual, const Picture& expected);

} // namespace quarlo::test
