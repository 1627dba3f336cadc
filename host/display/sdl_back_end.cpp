#include "display/sdl_back_end.h"

#include "display/area.h"
#include "display/sdl_input.h"
#include "report.h"

#include <condition_variable>
#include <future>
#include <mutex>
#include <thread>
#include <utility>

namespace gpi {
namespace {

constexpr GRect kNothing{0, 0, -1, -1};

class SdlBackEnd : public BackEnd {
  public:
    SdlBackEnd(const Settings& settings, const Frame& frame, Input& input)
        : settings_(settings),
          input_(input),
          rgb_(static_cast<size_t>(frame.width) * static_cast<size_t>(frame.height)) {}

    ~SdlBackEnd() override {
        if (thread_.joinable()) {
            change([this] { stop_ = true; });
            thread_.join();
        }
    }

    /// Starts the thread. An error text when it found no window.
    std::string open(VideoDriver driver) {
        std::promise<std::string> opened;
        auto answer = opened.get_future();
        thread_ = std::thread([this, driver, &opened] {
            run(driver, opened);
            SDL_TLSCleanup(); // which SDL does itself only for threads that it started
        });
        return answer.get();
    }

    void show(const Frame& frame, std::span<const GRect> areas) override {
        change([&] {
            for (const GRect& area : areas) {
                convertToRgb(frame, area, rgb_);
                damage_ = unite(damage_, area);
            }
        });
    }

    void setView(const View& view) override {
        change([&] { view_ = view; });
    }

    void settle() override {
        std::unique_lock lock(mutex_);
        const uint64_t wanted = asked_;
        progress_.wait(lock, [&] { return shown_ >= wanted || ended_; });
    }

    bool isWindow() const override { return true; }

    bool waitForClose() override {
        std::unique_lock lock(mutex_);
        progress_.wait(lock, [&] { return closed_ || ended_; });
        return true;
    }

    bool finish(const Frame& /*frame*/) override { return true; }

  private:
    /// Changes what both threads know and sees to it that the window's thread notices. One wake-up
    /// waits at most, however often something changes.
    template <typename Change>
    void change(const Change& change) {
        bool wake = false;
        {
            const std::lock_guard lock(mutex_);
            change();
            ++asked_;
            wake = !std::exchange(awake_, true);
        }
        if (wake) {
            SDL_Event event{};
            event.type = SDL_USEREVENT;
            SDL_PushEvent(&event);
        }
    }

    void run(VideoDriver driver, std::promise<std::string>& opened) {
        const auto window = SdlWindow::open(settings_, driver);
        // The promise is the opener's, which goes on as soon as it has the answer.
        opened.set_value(window != nullptr ? std::string() : reason());
        if (window == nullptr) {
            return;
        }
        window->present(View());
        SdlInput input(*window, input_);
        SDL_Event event;
        while (SDL_WaitEvent(&event) != 0) {
            bool exposed = handle(event, input);
            while (SDL_PollEvent(&event) != 0) {
                exposed = handle(event, input) || exposed;
            }
            if (!refresh(*window, exposed)) {
                break;
            }
        }
        const std::lock_guard lock(mutex_);
        ended_ = true;
        progress_.notify_all();
    }

    static std::string reason() {
        const std::string text = SDL_GetError();
        return text.empty() ? "no display server" : text;
    }

    /// True when the window must be shown again.
    bool handle(const SDL_Event& event, SdlInput& input) {
        input.handle(event);
        const bool windows = event.type == SDL_WINDOWEVENT;
        if (event.type == SDL_QUIT || (windows && event.window.event == SDL_WINDOWEVENT_CLOSE)) {
            const std::lock_guard lock(mutex_);
            closed_ = true;
            progress_.notify_all();
        }
        return windows && (event.window.event == SDL_WINDOWEVENT_EXPOSED ||
                           event.window.event == SDL_WINDOWEVENT_SIZE_CHANGED);
    }

    /// Shows what has changed. False when it is time to end.
    bool refresh(SdlWindow& window, bool exposed) {
        std::unique_lock lock(mutex_);
        if (stop_) {
            return false;
        }
        awake_ = false;
        const uint64_t reached = asked_;
        const View view = view_;
        const GRect damage = std::exchange(damage_, kNothing);
        if (!isEmpty(damage)) {
            window.upload(rgb_, damage);
        }
        if (reached != shown_ || exposed) {
            lock.unlock();
            window.present(view);
            lock.lock();
        }
        shown_ = reached;
        progress_.notify_all();
        return true;
    }

    const Settings settings_;
    Input& input_;
    std::thread thread_;

    std::mutex mutex_; ///< guards all that follows
    std::condition_variable progress_;
    std::vector<uint32_t> rgb_; ///< the whole picture
    GRect damage_ = kNothing;   ///< what of it the window has not got yet
    View view_;
    uint64_t asked_ = 0; ///< counts changes
    uint64_t shown_ = 0; ///< the count that is visible
    bool awake_ = false; ///< a wake-up is on its way
    bool closed_ = false;
    bool stop_ = false;
    bool ended_ = false;
};

} // namespace

std::unique_ptr<BackEnd> openSdlBackEnd(const Settings& settings, const Frame& frame, Input& input,
                                        VideoDriver driver) {
    auto backEnd = std::make_unique<SdlBackEnd>(settings, frame, input);
    const std::string failure = backEnd->open(driver);
    if (failure.empty()) {
        return backEnd;
    }
    if (driver == VideoDriver::Any) {
        report("cannot open a window: " + failure);
    }
    return nullptr;
}

} // namespace gpi
