#include "every_call/calls.h"

namespace quarlo::test {

const ProgramCalls& everyCall() {
    static const ProgramCalls calls = [] {
        ProgramCalls all;
        for (const auto& family :
             {platformCalls(), geometryCalls(), drawingCalls(), textCalls(), handleCalls(),
              memoryCalls(), eventCalls(), fileCalls(), networkCalls(), machineCalls()}) {
            all.insert(all.end(), family.begin(), family.end());
        }
        return all;
    }();
    return calls;
}

void runEveryCall(RecordingPlatform& platform) {
    Numbers usual;
    Panel panel(platform, usual);
    for (int round = 0; round < 2; ++round) {
        for (const ProgramCall& call : everyCall()) {
            makeCall(call, panel);
        }
    }
}

} // namespace quarlo::test
