// Captions and icons of all soft keys.
#include "panel_bench.h"

#include <gtest/gtest.h>

#include <set>

namespace panel::test {
namespace {

struct Size {
    const char* width;
    const char* height;
};

constexpr Size kSizes[] = {{"640", "480"}, {"800", "600"}, {"1024", "768"}};

/// Looks at the row in view. @return how many keys it has
int look(const Bench& bench, const SoftKeys& keys) {
    const Painter& painter = bench.context().painter;
    painter.select(Face::Label);
    int count = 0;
    for (size_t i = 0; i < SoftKeys::kCount; ++i) {
        const SoftKey& key = keys.key(i);
        if (key.action != Action::None) {
            const std::u16string& caption = bench.context().texts[key.label];
            EXPECT_FALSE(caption.empty());
            EXPECT_LE(GDGetStringWidth(painter.handle(), caption.c_str()),
                      widthOf(keys.captionPlace(i)))
                << testing::PrintToString(caption);
            ++count;
        }
    }
    return count;
}

TEST(SoftKeys, HoldTheirCaptionsInEveryLanguageAndSize) {
    for (const Size& size : kSizes) {
        for (size_t language = 0; language < kLanguages.size(); ++language) {
            SCOPED_TRACE(testing::Message() << size.width << " in language " << language);
            Bench bench({{"QUARLO_WIDTH", size.width},
                         {"QUARLO_HEIGHT", size.height},
                         {"QUARLO_MODULES", PANEL_MODULES}},
                        language);
            const SoftKeys& keys = bench.panel().keys();
            int seen = look(bench, keys);
            for (int screen = 1; screen <= 9; ++screen) {
                bench.run("key Esc\nkey Tab");
                seen += look(bench, keys); // the row of screens
                bench.run("key F" + std::to_string(screen));
                seen += look(bench, keys);
            }
            EXPECT_GT(seen, 140);
            EXPECT_TRUE(bench.context().texts.missing().empty());
        }
    }
}

TEST(SoftKeys, HaveAnIconForEveryFunction) {
    Bench bench({{"QUARLO_MODULES", PANEL_MODULES}}, 0);
    const SoftKeys& keys = bench.panel().keys();
    const auto check = [&keys] {
        std::set<Icon> icons;
        for (size_t i = 0; i < SoftKeys::kCount; ++i) {
            const SoftKey& key = keys.key(i);
            if (key.action == Action::None) {
                continue;
            }
            EXPECT_GE(key.icon, 0) << i;
            EXPECT_LT(key.icon, PANEL_ICONS_COUNT) << i;
            const bool language =
                key.action >= Action::UseEnglish && key.action <= Action::UseChinese;
            EXPECT_TRUE(icons.insert(key.icon).second || language) << "twice in a row: " << i;
        }
    };
    check();
    for (int screen = 1; screen <= 9; ++screen) {
        bench.run("key Esc\nkey Tab");
        check();
        bench.run("key F" + std::to_string(screen));
        check();
    }
}

} // namespace
} // namespace panel::test
