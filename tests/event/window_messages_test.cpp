// Messages as Windows keeps them for a thread, fetched by a platform that asks the system.
#include "event/pending.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

using namespace quarlo::test;

namespace {

constexpr UINT kOwnMessage = WM_APP + 7;

std::vector<UINT> received;

LRESULT CALLBACK receive(HWND window, UINT message, WPARAM param1, LPARAM param2) {
    received.push_back(message);
    return DefWindowProcW(window, message, param1, param2);
}

/// A window that gets messages and shows nothing.
class MessageWindow {
  public:
    MessageWindow() {
        WNDCLASSW description{};
        description.lpfnWndProc = receive;
        description.lpszClassName = L"window messages";
        RegisterClassW(&description);
        window_ = CreateWindowExW(0, description.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE,
                                  nullptr, nullptr, nullptr);
    }
    ~MessageWindow() {
        DestroyWindow(window_);
        UnregisterClassW(L"window messages", nullptr);
    }
    MessageWindow(const MessageWindow&) = delete;
    MessageWindow& operator=(const MessageWindow&) = delete;

    operator HWND() const { return window_; } // NOLINT: it is used as its handle

  private:
    HWND window_;
};

class WindowMessages : public testing::Test {
  protected:
    WindowMessages() {
        platform.serve<124>([](GMessage* message) {
            return PeekMessageW(reinterpret_cast<MSG*>(message), nullptr, 0, 0, PM_REMOVE);
        });
        GEClearWindowsEvent();
        received.clear();
        platform.forget();
    }

    EventPlatform platform;
    MessageWindow window;
};

TEST_F(WindowMessages, ReachTheirWindow) {
    ASSERT_NE(window, nullptr);
    GESetEvent(event(5, 1), 0);
    ASSERT_TRUE(PostMessageW(window, kOwnMessage, 1, 2));
    EXPECT_EQ(GEClearWindowsEvent(), 1);
    EXPECT_EQ(received, std::vector{kOwnMessage});
    EXPECT_EQ(takeAll(), std::vector<GEventMsg>{});
}

TEST_F(WindowMessages, OfInputAreDropped) {
    for (const UINT input : {UINT{WM_KEYDOWN}, UINT{WM_CHAR}, UINT{WM_MOUSEMOVE}, UINT{0x2FF}}) {
        ASSERT_TRUE(PostMessageW(window, input, 'A', 1));
    }
    GEClearWindowsEvent();
    EXPECT_EQ(received, std::vector<UINT>{});
    EXPECT_EQ(platform.count(124), 5U);
}

TEST_F(WindowMessages, OfTheThreadItselfReachNoWindow) {
    ASSERT_TRUE(PostThreadMessageW(GetCurrentThreadId(), kOwnMessage, 0, 0));
    EXPECT_EQ(GEClearWindowsEvent(), 1);
    EXPECT_EQ(received, std::vector<UINT>{});
    EXPECT_EQ(platform.count(124), 2U);
}

TEST_F(WindowMessages, ToQuitPostAnEvent) {
    PostQuitMessage(0);
    EXPECT_EQ(GEClearWindowsEvent(), 1);
    EXPECT_EQ(takeAll(), std::vector{event(G_EVENT_QUIT, 0)});
}

} // namespace
