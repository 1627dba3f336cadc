// Paths of programs: put together and taken apart within the room that there is, and located in a
// folder with links in and out of it, which none may lead out of.
#include "require.h"

#include "file/error.h"
#include "file/root.h"
#include "file/services.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

namespace gpi {
namespace {

using quarlo::fuzz::require;

/// A folder for the life of the process, with a folder, a file, and links.
class Playground {
  public:
    Playground() {
        std::string name = std::filesystem::temp_directory_path() / "quarlo-path-XXXXXX";
        require(::mkdtemp(name.data()) != nullptr, "no temporary folder");
        top_ = std::filesystem::canonical(name);
        std::filesystem::create_directories(root() / "a" / "b");
        std::filesystem::create_directory_symlink("a/b", root() / "in");
        std::filesystem::create_directory_symlink("..", root() / "up");
        std::filesystem::create_directory_symlink("/", root() / "out");
        std::filesystem::create_directory_symlink("loop", root() / "loop");
    }
    ~Playground() { std::filesystem::remove_all(top_); }
    Playground(const Playground&) = delete;
    Playground& operator=(const Playground&) = delete;

    std::filesystem::path root() const { return top_ / "root"; }

  private:
    std::filesystem::path top_;
};

void checkInside(const char16_t* path, Root::LastLink last) {
    static const Playground playground;
    static const Root root(playground.root());
    try {
        const Place place = root.locate(path, last);
        const auto folder =
            std::filesystem::canonical("/proc/self/fd/" + std::to_string(place.folder.get()));
        const std::string inside = playground.root();
        require((folder.string() + '/').starts_with(inside + '/'), "a path leads out of its root");
        require(place.name.find('/') == place.name.npos && place.name != "..", "a name is a path");
    } catch (const IoError&) {           // refused
    } catch (const std::system_error&) { // refused by the system
    }
}

/// What comes apart is put together as it was, but for the kind of the last slash.
void checkParts(const char16_t* path) {
    struct Parts {
        char16_t drive[G_DRIVE_SIZE];
        char16_t directory[G_DIRECTORY_SIZE];
        char16_t name[G_NAME_SIZE];
        char16_t extension[G_NAME_SIZE];
    };
    const auto parts = std::make_unique<Parts>();
    if (splitPath(path, parts->drive, parts->directory, parts->name, parts->extension) != 1) {
        return;
    }
    const auto whole = std::make_unique<char16_t[]>(G_PATH_SIZE);
    require(makePath(whole.get(), parts->drive, parts->directory, parts->name, parts->extension) ==
                1,
            "a path that came apart cannot be put together");
    require(std::u16string(whole.get()) == path, "a path was put together as another");
}

} // namespace
} // namespace gpi

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) {
        return 0;
    }
    // Bytes as units, so that the fuzzer's inputs read as text; one of them is no text in UTF-16.
    std::u16string path(data + 1, data + size);
    std::replace(path.begin(), path.end(), u'\0', char16_t{0xD800});
    gpi::checkParts(path.c_str());
    gpi::checkInside(path.c_str(),
                     data[0] % 2 != 0 ? gpi::Root::LastLink::Followed : gpi::Root::LastLink::Kept);
    return 0;
}
