#include "store/remote.h"

#include <quarlo/quarlo.h>

namespace panel {
namespace {

constexpr int32_t kPatience = 3000; // milliseconds for a file that the control is writing

class DataServer : public Remote {
  public:
    std::optional<std::string> read(const std::u16string& name,
                                    const std::atomic<bool>& stop) const override {
        GDataFile* const file = GIODSOpen(name.c_str(), G_OPEN_READ, kPatience, nullptr);
        if (file == nullptr) {
            return std::nullopt;
        }
        auto bytes = readPieces(stop, [file](char* piece, int32_t room) {
            int32_t got = 0;
            const int32_t result = GIODSRead(file, piece, room, &got);
            return result == 1 ? got : result == G_IO_END ? 0 : -1;
        });
        GIODSClose(file);
        return bytes;
    }
};

} // namespace

std::unique_ptr<Remote> makeDataServer() {
    return std::make_unique<DataServer>();
}

} // namespace panel
