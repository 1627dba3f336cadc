#include "commands.h"

#include "check.h"
#include "dump.h"
#include "failure.h"
#include "files.h"
#include "grf_writer.h"
#include "image.h"
#include "info.h"
#include "options.h"
#include "palette.h"
#include "png_file.h"
#include "run_decoder.h"
#include "run_encoder.h"

#include <algorithm>
#include <charconv>
#include <iostream>
#include <list>

namespace grf {
namespace {

constexpr const char* kUsage =
    R"(usage: quarlo-grf encode --surface 8|555|565|24|palette [--pack 1|2|4|8]
                         [--colors PNG] [--matte RRGGBB] [--quiet] [IN [OUT]]
       quarlo-grf decode [IN [OUT]]
       quarlo-grf info [FILE...]
       quarlo-grf check [FILE...]
       quarlo-grf dump [--name NAME] [--header] [--output FILE] [FILE...]
       quarlo-grf --help

encode  makes a GRF file of a PNG file, for surfaces of a format: direct values,
        or with --pack a palette and as many bits for each pixel. On a palette
        surface values are indexes. --colors takes the palette from a picture:
        its colours in the order in which they come. --matte is the colour that
        will be under the image; without it edges are not smooth. The bytes
        saved are told, unless --quiet.
decode  makes a PNG file of a GRF file.
info    tells size and format, runs, and bytes against those of raw values.
check   names everything that is malformed, with its offset.
dump    writes GRF files as a table of C source, or its header.

Files that are not named, or named -, are the standard input and output.
)";

/// Does something for a file, so that a failure tells which it was.
template <typename Action>
auto with(const std::string& path, Action action) {
    try {
        return action(path);
    } catch (const Failure& failure) {
        throw Failure(path + ": " + failure.what());
    }
}

std::vector<std::string> filesOf(const Options& options) {
    return options.operands().empty() ? std::vector<std::string>{"-"} : options.operands();
}

Picture readPicture(const std::string& path) {
    return with(path, [](const std::string& name) { return readPng(readFile(name)); });
}

void write(const std::string& path, std::span<const uint8_t> bytes) {
    with(path, [bytes](const std::string& name) { writeFile(name, bytes); });
}

/// A GRF file and the record that points into it.
struct OpenImage {
    explicit OpenImage(const std::string& path)
        : bytes(with(path, [](const std::string& name) { return readFile(name); })) {
        if (GGrfOpenFile(&file, bytes.data(), bytes.size()) == 0) {
            const Finding first = check(bytes).front();
            throw Failure(path + ": offset " + std::to_string(first.offset) + ": " + first.what);
        }
    }
    OpenImage(const OpenImage&) = delete;
    OpenImage& operator=(const OpenImage&) = delete;

    std::vector<uint8_t> bytes;
    GGrfFile file;
};

/// A whole number in a word of just so many digits.
uint32_t numberIn(const std::string& word, size_t digits, int base) {
    uint32_t number = 0;
    const char* const end = word.data() + word.size();
    const auto [last, error] = std::from_chars(word.data(), end, number, base);
    if (word.size() != digits || last != end || error != std::errc()) {
        throw Misuse();
    }
    return number;
}

Target targetOf(const Options& options) {
    const auto surface = surfaceNamed(options.value("--surface").value_or(""));
    const auto pack = options.value("--pack");
    if (!surface || (pack && surface->isIndexed())) {
        throw Misuse();
    }
    Target target;
    target.surface = *surface;
    if (pack) {
        constexpr uint32_t kPacked[] = {1, 2, 4, 8};
        const uint32_t bits = numberIn(*pack, 1, 10);
        if (std::find(std::begin(kPacked), std::end(kPacked), bits) == std::end(kPacked)) {
            throw Misuse();
        }
        target.packedBits = static_cast<int>(bits);
    }
    if (const auto matte = options.value("--matte")) {
        target.matte = colorOfRgb(numberIn(*matte, 6, 16));
    }
    if (const auto colors = options.value("--colors")) {
        target.palette = distinct(readPicture(*colors).pixels);
    }
    return target;
}

ExitStatus encode(const Options& options) {
    const Target target = targetOf(options);
    const Picture picture = readPicture(options.operand(0));
    const Image image =
        with(options.operand(0), [&](const std::string&) { return imageOf(picture, target); });
    const auto bytes = writeGrf(image, encodeRuns(image));
    write(options.operand(1), bytes);
    GGrfFile made;
    if (!options.has("--quiet") && GGrfOpenFile(&made, bytes.data(), bytes.size()) != 0) {
        std::cerr << options.operand(0) << ": " << describeSaving(made) << '\n';
    }
    return kDone;
}

ExitStatus decode(const Options& options) {
    const OpenImage opened(options.operand(0));
    const Image image =
        with(options.operand(0), [&](const std::string&) { return decodeRuns(opened.file); });
    write(options.operand(1), writePng(pictureOf(image)));
    return kDone;
}

ExitStatus info(const Options& options) {
    for (const std::string& path : filesOf(options)) {
        std::cout << path << ": " << describe(OpenImage(path).file);
    }
    return kDone;
}

ExitStatus checkAll(const Options& options) {
    ExitStatus status = kDone;
    for (const std::string& path : filesOf(options)) {
        const auto bytes = with(path, [](const std::string& name) { return readFile(name); });
        for (const Finding& finding : check(bytes)) {
            std::cout << path << ": offset " << finding.offset << ": " << finding.what << '\n';
            status = kFailed;
        }
    }
    return status;
}

ExitStatus dump(const Options& options) {
    const std::string table = options.value("--name").value_or("images");
    if (!isIdentifier(table)) {
        throw Misuse();
    }
    std::list<OpenImage> images;
    std::vector<Entry> entries;
    for (const std::string& path : filesOf(options)) {
        entries.push_back({stemOf(path), &images.emplace_back(path).file});
    }
    const std::string text =
        options.has("--header") ? dumpHeader(table, entries) : dumpSource(table, entries);
    with(options.value("--output").value_or("-"),
         [&text](const std::string& name) { writeFile(name, text); });
    return kDone;
}

struct Command {
    std::string_view name;
    size_t mostOperands;
    std::vector<std::string_view> valued;
    std::vector<std::string_view> flags;
    ExitStatus (*run)(const Options&);
};

ExitStatus dispatch(std::span<const std::string> words) {
    if (words.size() == 1 && words[0] == "--help") {
        std::cout << kUsage;
        return kDone;
    }
    constexpr size_t kAny = SIZE_MAX;
    const Command commands[] = {
        {"encode", 2, {"--surface", "--pack", "--colors", "--matte"}, {"--quiet"}, encode},
        {"decode", 2, {}, {}, decode},
        {"info", kAny, {}, {}, info},
        {"check", kAny, {}, {}, checkAll},
        {"dump", kAny, {"--name", "--output"}, {"--header"}, dump}};
    for (const Command& command : commands) {
        if (!words.empty() && words[0] == command.name) {
            const Options options(words.subspan(1), command.valued, command.flags);
            if (options.operands().size() > command.mostOperands) {
                throw Misuse();
            }
            return command.run(options);
        }
    }
    throw Misuse();
}

} // namespace

ExitStatus runCommand(std::span<const std::string> words) {
    try {
        return dispatch(words);
    } catch (const Misuse&) {
        std::cerr << kUsage;
        return kMisused;
    } catch (const Failure& failure) {
        std::cerr << "quarlo-grf: " << failure.what() << '\n';
        return kFailed;
    }
}

} // namespace grf
