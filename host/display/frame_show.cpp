#include "display/frame_show.h"

#include "display/blocked_signals.h"

#include <thread>
#include <utility>

namespace gpi {
namespace {

class ThreadBackEnd : public BackEnd {
  public:
    ThreadBackEnd(std::unique_ptr<FrameShow> show, const Frame& frame, Settling settling)
        : show_(std::move(show)), settling_(settling), frames_(frame), thread_([this] { run(); }) {}

    ~ThreadBackEnd() override {
        frames_.stop();
        thread_.join();
    }

    void show(const Frame& frame, std::span<const GRect> areas) override {
        frames_.put(frame, areas);
    }

    void settle() override {
        if (settling_ == Settling::Waits) {
            frames_.settle();
        }
    }

    void setView(const View& view) override { frames_.setView(view); }
    bool isWindow() const override { return true; }

    bool waitForClose() override {
        frames_.waitForEnd();
        return true;
    }

    bool finish(const Frame& /*frame*/) override { return true; }

  private:
    void run() {
        blockSignals();
        show_->run(frames_);
        frames_.end();
    }

    std::unique_ptr<FrameShow> show_;
    const Settling settling_;
    FrameExchange frames_;
    std::thread thread_;
};

} // namespace

std::unique_ptr<BackEnd> showInThread(std::unique_ptr<FrameShow> show, const Frame& frame,
                                      Settling settling) {
    return std::make_unique<ThreadBackEnd>(std::move(show), frame, settling);
}

} // namespace gpi
