// A foreign control, spoken to through a helper program.
#pragma once

#include "nc/alarms.h"
#include "nc/controller.h"
#include "nc/helper/line_channel.h"
#include "nc/helper/report_reader.h"

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

namespace gpi::nc {

/// Keeps a picture of the control as its helper paints it, and sends it requests:
///
///     REQUEST system NUMBER VALUE
///     REQUEST value AREA NUMBER INDEX VALUE
///     REQUEST program PATH
///     REQUEST block BLOCK
///
/// each of which the helper answers by a reply. A helper that ends, or says what nobody
/// understands, is started again. While there is no picture every call gives G_NC_OFFLINE, but for
/// the alarms, which tell when the control was lost.
class HelperController : public Controller {
  public:
    struct Times {
        std::chrono::milliseconds reply{1000};   ///< a call waits no longer than this
        std::chrono::milliseconds restart{1000}; ///< from the end of a helper to the next
    };

    HelperController(std::filesystem::path program, Times times);
    explicit HelperController(std::filesystem::path program)
        : HelperController(std::move(program), Times()) {}
    ~HelperController() override;

    Extent extent() const override;
    int32_t setValue(const ValueAddress& address, double value) override;
    int32_t getValue(const ValueAddress& address, double& value) override;
    int32_t choose(std::shared_ptr<const Program> program) override;
    int32_t runBlock(const std::string& block) override;
    int32_t getText(int32_t string, int32_t number, std::string& text) override;
    int32_t setSystem(int32_t number, int32_t value) override;
    int32_t getSystem(int32_t number, int32_t& value) override;

  private:
    void listen();
    bool listenTo(LineChannel& channel);
    bool take(const ReportReader::Report& report, const Picture& picture);
    void lose(std::string_view reason);
    bool pause();

    int32_t request(const std::string& what);
    bool showsOurProgram() const;

    const std::filesystem::path program_;
    const Times times_;

    mutable std::mutex mutex_;
    std::condition_variable replied_;
    LineChannel* channel_ = nullptr; ///< null between two helpers
    bool online_ = false;            ///< there is a picture
    bool complained_ = false;        ///< the user knows that there is none
    Picture picture_;
    Alarms alarms_;
    std::shared_ptr<const Program> chosen_;
    int32_t lastRequest_ = 0;
    std::map<int32_t, int32_t> replies_; ///< to requests that someone waits for; 0 is none yet

    UniqueFd stop_; ///< readable when the listener is to end
    std::thread listener_;
};

} // namespace gpi::nc
