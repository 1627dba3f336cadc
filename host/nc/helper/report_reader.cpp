#include "nc/helper/report_reader.h"

#include <charconv>
#include <cmath>

namespace gpi::nc {
namespace {

// A helper that says more than this about one control has gone mad.
constexpr size_t kMostEntries = 20'000;

std::string_view takeWord(std::string_view& rest) {
    const size_t length = std::min(rest.find(' '), rest.size());
    const std::string_view word = rest.substr(0, length);
    rest.remove_prefix(std::min(length + 1, rest.size()));
    return word;
}

template <typename Number>
bool take(std::string_view& rest, Number& number) {
    const std::string_view word = takeWord(rest);
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    return error == std::errc() && end == word.data() + word.size();
}

/// Takes numbers to the end of the line.
template <typename... Numbers>
bool takeAll(std::string_view rest, Numbers&... numbers) {
    return (take(rest, numbers) && ...) && rest.empty();
}

bool isSane(const Extent& extent) {
    return extent.axes >= 1 && extent.axes <= 9 && extent.spindles >= 0 && extent.spindles <= 8 &&
           extent.tools >= 0 && extent.tools <= 99'999 && extent.mostFeed >= 0.0 &&
           extent.mostTravel >= 0.0;
}

} // namespace

ReportReader::Report ReportReader::read(std::string_view line) {
    std::string_view rest = line;
    const std::string_view kind = takeWord(rest);
    Report report;
    if (kind == "show") {
        report.kind = Kind::Show;
    } else if (kind == "lost") {
        picture_ = {};
        report.kind = Kind::Lost;
        report.text = rest;
    } else if (kind == "alarm") {
        report.kind = take(rest, report.number) ? Kind::Alarm : Kind::Nonsense;
        report.text = rest;
    } else if (kind == "reply") {
        report.kind = takeAll(rest, report.number, report.result) ? Kind::Reply : Kind::Nonsense;
    } else {
        report = part(kind, rest);
    }
    return report;
}

ReportReader::Report ReportReader::part(std::string_view kind, std::string_view rest) {
    const size_t entries = picture_.values.size() + picture_.system.size() + picture_.texts.size();
    bool understood = false;
    if (kind == "value") {
        int32_t area = 0;
        int32_t number = 0;
        int32_t index = 0;
        double value = 0.0;
        understood = takeAll(rest, area, number, index, value);
        if (understood) {
            picture_.values[{area, number, index}] = value;
        }
    } else if (kind == "system") {
        int32_t number = 0;
        int32_t value = 0;
        understood = takeAll(rest, number, value);
        if (understood) {
            picture_.system[number] = value;
        }
    } else if (kind == "text") {
        int32_t string = 0;
        int32_t number = 0;
        understood = take(rest, string) && take(rest, number);
        if (understood) {
            picture_.texts[{string, number}] = rest;
        }
    } else if (kind == "extent") {
        Extent extent{};
        understood = takeAll(rest, extent.axes, extent.spindles, extent.tools, extent.mostFeed,
                             extent.mostTravel) &&
                     isSane(extent);
        if (understood) {
            picture_.extent = extent;
        }
    }
    return {understood && entries <= kMostEntries ? Kind::Part : Kind::Nonsense};
}

} // namespace gpi::nc
