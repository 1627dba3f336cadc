// What a platform library defines, answered by the recording platform.
#include "support/recording_platform.h"

using quarlo::test::RecordingPlatform;

GPIFunction GPIGetService(int32_t number) {
    return RecordingPlatform::current().request(number);
}

int32_t GPIGetFontCount(void) {
    RecordingPlatform& platform = RecordingPlatform::current();
    platform.record(quarlo::test::call(quarlo::test::kFontCount));
    return static_cast<int32_t>(platform.answerOf(quarlo::test::kFontCount, 0));
}

void GPIShutdownEvents(void) {
    RecordingPlatform::current().record(quarlo::test::call(quarlo::test::kShutdownEvents));
}

void GPITranslateMessage(GMessage* message) {
    RecordingPlatform::current().record(
        quarlo::test::call(quarlo::test::kTranslateMessage, message->number));
}

void GPIDispatchMessage(GMessage* message) {
    RecordingPlatform::current().record(
        quarlo::test::call(quarlo::test::kDispatchMessage, message->number));
}
