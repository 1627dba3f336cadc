#include "app/services.h"

#include "file/error.h"
#include "platform.h"
#include "text/transcode.h"

namespace gpi {
namespace {

ProgramStore& programs() {
    if (platform().programs == nullptr) {
        throw IoError(G_IO_DEVICE);
    }
    return *platform().programs;
}

} // namespace

int32_t executeProgram(const char16_t* program, const char16_t* arguments,
                       const char16_t* directory, uint32_t flags, int32_t* result) {
    return ioResult([&] {
        const auto line = utf8Of(arguments != nullptr ? arguments : u"");
        if (!line || (flags & ~static_cast<uint32_t>(G_APP_WAIT | G_APP_SINGLE)) != 0) {
            throw IoError(G_IO_ARGUMENT);
        }
        const bool single = (flags & G_APP_SINGLE) != 0;
        const ProgramStore::Start start{program, *line, directory, single};
        const int32_t answer =
            (flags & G_APP_WAIT) != 0 ? programs().run(start) : programs().start(start);
        if (result != nullptr) {
            *result = answer;
        }
        return 1;
    });
}

int32_t exitProgram(int32_t number) {
    return ioResult([&] {
        if (number == 0) {
            GMessage quit{};
            quit.number = G_MESSAGE_QUIT;
            platform().messages.post(quit);
            return 1;
        }
        return number > 0 && programs().end(number) ? 1 : static_cast<int32_t>(G_IO_NOT_FOUND);
    });
}

} // namespace gpi
