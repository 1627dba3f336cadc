#include "display/canvas/canvas_input.h"
#include "input/message_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace gpi;
using gpi::test::textOf;

using Texts = std::vector<std::string>;

constexpr int kLeft = 1;
constexpr int kRight = 2;

class CanvasMessages : public testing::Test {
  protected:
    Texts news() {
        Texts texts;
        while (const auto message = messages_.take()) {
            texts.push_back(textOf(*message));
        }
        return texts;
    }

    Signal events_;
    MessageQueue messages_{events_};
    Input input_{messages_};
    CanvasInput canvas_{input_};
};

TEST_F(CanvasMessages, HaveKeys) {
    EXPECT_TRUE(canvas_.key("KeyA", "a", true));
    EXPECT_TRUE(canvas_.key("KeyA", "A", false)) << "Shift went down meanwhile";
    EXPECT_FALSE(canvas_.key("MediaPlayPause", "MediaPlayPause", true));
    EXPECT_EQ(news(), (Texts{"key down 65", "key up 65"}));
}

TEST_F(CanvasMessages, HaveAPointer) {
    canvas_.pointer({3, 4, false}, 0);
    canvas_.pointer({3, 4, false}, kLeft);
    canvas_.pointer({5, 4, false}, kLeft | kRight);
    canvas_.pointer({5, 4, false}, kRight);
    canvas_.pointer({5, 4, false}, 0);
    EXPECT_EQ(news(), (Texts{"move 3,4", "left down 3,4 held 1", "move 5,4 held 1",
                             "right down 5,4 held 3", "left up 5,4 held 2", "right up 5,4"}));
}

TEST_F(CanvasMessages, HaveAFingerThatComesFromNowhere) {
    canvas_.pointer({30, 40, false}, kLeft);
    canvas_.pointer({30, 40, false}, 0);
    EXPECT_EQ(news(), (Texts{"move 30,40", "left down 30,40 held 1", "left up 30,40"}));
}

TEST_F(CanvasMessages, LeaveAPressBesideThePictureOut) {
    canvas_.pointer({0, 9, true}, kLeft);
    canvas_.pointer({0, 9, true}, 0);
    EXPECT_EQ(news(), Texts{});
}

TEST_F(CanvasMessages, FollowADragOutOfThePicture) {
    canvas_.pointer({1, 1, false}, kLeft);
    canvas_.pointer({0, 9, true}, kLeft);
    canvas_.pointer({0, 9, true}, kLeft | kRight);
    canvas_.pointer({0, 9, true}, 0);
    EXPECT_EQ(news(),
              (Texts{"move 1,1", "left down 1,1 held 1", "move 0,9 held 1", "left up 0,9"}));
}

TEST_F(CanvasMessages, ReleaseWhatIsHeldWhenAPersonTurnsAway) {
    canvas_.key("F1", "F1", true);
    canvas_.pointer({1, 1, false}, kLeft);
    news();
    canvas_.leave();
    EXPECT_EQ(news(), (Texts{"key up 112", "left up 1,1"}));
    canvas_.key("F1", "F1", false);
    EXPECT_EQ(news(), Texts{});
}

} // namespace
