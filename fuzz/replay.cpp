// Runs a fuzz target on the files of a folder, without a fuzzer and with any compiler.
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

void run(const std::filesystem::path& path) {
    std::cout << path.filename().string() << std::endl; // the last one is the one that failed
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " FOLDER\n";
        return EXIT_FAILURE;
    }
    std::set<std::filesystem::path> inputs;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        inputs.insert(entry.path());
    }
    for (const auto& path : inputs) {
        run(path);
    }
    return inputs.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}
