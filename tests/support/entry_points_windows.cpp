// GPI.dll of the tests hands its calls on to the program, where the recording platform answers
// them.
#include "support/recording_gpi.h"
#include "support/recording_platform.h"

namespace quarlo::test {
namespace {

GPIFunction getService(int32_t number) {
    return RecordingPlatform::current().request(number);
}

int32_t getFontCount() {
    RecordingPlatform& platform = RecordingPlatform::current();
    platform.record(call(kFontCount));
    return static_cast<int32_t>(platform.answerOf(kFontCount, 0));
}

void shutdownEvents() {
    RecordingPlatform::current().record(call(kShutdownEvents));
}

constexpr GPIEntryPoints kEntryPoints = {getService, getFontCount, shutdownEvents};

[[maybe_unused]] const bool connected = (connectProgram(&kEntryPoints), true);

} // namespace
} // namespace quarlo::test
