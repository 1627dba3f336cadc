// Keys that a person presses at the window.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <queue>

union SDL_Event;

namespace gallery {

enum class Key { Previous, Next, First, Last, Close };

/// The sheet to turn to from another one by a key; before the first one comes the last.
size_t turned(size_t sheet, size_t count, Key key);

/// Watches the window of the host platform, which is one of SDL's, as long as this lives. The
/// platform shows it in a thread of its own, and so the keys come from there.
class Keys {
  public:
    Keys();
    ~Keys();
    Keys(const Keys&) = delete;
    Keys& operator=(const Keys&) = delete;

    /// The next key that means something. Close when the window was closed, or when there is none.
    Key wait();

  private:
    static int watch(void* keys, SDL_Event* event);
    void take(const SDL_Event& event);

    std::mutex mutex_;
    std::condition_variable pressed_;
    std::queue<Key> keys_;
};

} // namespace gallery
