// docs/porting.md against the library's table of services and the headers for platforms.
#include "platform/service_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

using namespace quarlo;

namespace {

std::string read(const std::string& path) {
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

const std::string& page() {
    static const std::string text = read(PORTING_PAGE);
    return text;
}

/// The parts of a text between separators.
std::vector<std::string> split(const std::string& text, const std::string& separator) {
    std::vector<std::string> parts;
    size_t begin = 0;
    for (size_t end; (end = text.find(separator, begin)) != std::string::npos;) {
        parts.push_back(text.substr(begin, end - begin));
        begin = end + separator.size();
    }
    parts.push_back(text.substr(begin));
    return parts;
}

/// The word that a text begins with.
std::string wordAt(const std::string& text) {
    const auto isPart = [](char c) { return std::isalnum(static_cast<uint8_t>(c)) || c == '_'; };
    return {text.begin(), std::find_if_not(text.begin(), text.end(), isPart)};
}

/// A row of the page's tables.
struct Row {
    std::string name;
    std::string type;
    std::string need;
    std::string asked;
};

std::multimap<int, Row> rows() {
    std::multimap<int, Row> found;
    for (const std::string& line : split(page(), "\n")) {
        // | number | `name` | `type` | gives | need | asked | without it |
        const auto cells = split(line, " | ");
        if (cells.size() == 7 && std::isdigit(static_cast<uint8_t>(line[2]))) {
            EXPECT_FALSE(cells[3].empty() || cells[6].size() < 4) << line;
            found.emplace(
                std::stoi(line.substr(2)),
                Row{wordAt(cells[1].substr(1)), wordAt(cells[2].substr(1)), cells[4], cells[5]});
        }
    }
    return found;
}

/// What the headers say of a service: "Service N, NEED: ..." above its type.
struct Declaration {
    std::string type;
    std::string need;
};

std::map<int, Declaration> declarations() {
    std::map<int, Declaration> found;
    const std::string headers = read(HEADERS "/services.h") + read(HEADERS "/forwards.h");
    for (const std::string& typeAndNext : split(headers, "* Service ")) {
        const size_t type = typeAndNext.find("(*GPI");
        if (std::isdigit(static_cast<uint8_t>(typeAndNext[0])) && type != std::string::npos) {
            const std::string comment = typeAndNext.substr(0, typeAndNext.find(':'));
            const auto says = [&](const char* need) {
                return comment.find(need) != std::string::npos;
            };
            found[std::stoi(typeAndNext)] = {
                wordAt(typeAndNext.substr(type + 2)),
                says(", needed") ? "needed" : (says(", expected") ? "expected" : "optional")};
        }
    }
    return found;
}

TEST(PortingPage, HasOneRowForEachService) {
    const auto all = rows();
    EXPECT_EQ(all.size(), kServiceCount);
    for (int number = -1; number <= 1000; ++number) {
        EXPECT_EQ(all.count(number), slotOf(number) < kServiceCount ? 1U : 0U) << number;
    }
}

TEST(PortingPage, NamesServicesAsTheHeaderDoes) {
    std::map<int, std::string> names;
    for (const std::string& name : split(read(HEADERS "/gpi.h"), "GPI_SERVICE_")) {
        const size_t equals = name.find(" = ");
        if (equals == wordAt(name).size()) {
            names[std::stoi(name.substr(equals + 3))] = wordAt(name);
        }
    }
    EXPECT_EQ(names.size(), kServiceCount);
    for (const auto& [number, row] : rows()) {
        EXPECT_EQ(row.name, names[number]) << number;
    }
}

TEST(PortingPage, HasTheTypesAndNeedsOfTheHeaders) {
    auto declared = declarations();
    EXPECT_EQ(declared.size(), kServiceCount);
    for (const auto& [number, row] : rows()) {
        EXPECT_EQ(row.type, declared[number].type) << number;
        EXPECT_EQ(row.need, declared[number].need) << number;
    }
}

TEST(PortingPage, SaysWhenAServiceIsAskedFor) {
    for (const auto& [number, row] : rows()) {
        EXPECT_TRUE(row.asked == "at start" || row.asked == "late") << number;
    }
    const auto all = rows();
    for (const int number : {65, 66}) {
        EXPECT_EQ(all.find(number)->second.asked, "late") << number;
    }
}

TEST(PortingPage, HasTheTablesOfTheTool) {
    const std::string tables = read(TOOL_TABLES);
    ASSERT_GT(tables.size(), 10000U);
    EXPECT_NE((page() + '\n').find(tables), std::string::npos)
        << "put the output of quarlo-doctor --services at the end of docs/porting.md";
}

} // namespace
