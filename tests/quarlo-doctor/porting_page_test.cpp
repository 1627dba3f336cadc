// docs/porting.md against the library's table of services and the headers for platforms.
#include "platform/service_table.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <regex>
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

/// Everything that matches in a text, in order.
std::vector<std::smatch> matches(const std::string& text, const std::string& pattern) {
    const std::regex expression(pattern);
    return {std::sregex_iterator(text.begin(), text.end(), expression), std::sregex_iterator()};
}

/// A row of the page's tables.
struct Row {
    std::string name;
    std::string type;
    std::string gives;
    std::string need;
    std::string asked;
    std::string without;
};

std::multimap<int, Row> rows() {
    std::multimap<int, Row> found;
    for (const auto& row : matches(page(), R"(\n\| (\d+) \| `(\w+)` \| `(\w+)` \| ([^|\n]+) \| )"
                                           R"((\w+) \| ([\w ]+) \| ([^|\n]+) \|)")) {
        found.emplace(std::stoi(row[1]), Row{row[2], row[3], row[4], row[5], row[6], row[7]});
    }
    return found;
}

/// What the headers say of services: "Service N, NEED: ..." above a type.
struct Declaration {
    std::string type;
    std::string need;
};

std::map<int, Declaration> declarations() {
    const std::string headers = read(HEADERS "/services.h") + read(HEADERS "/forwards.h");
    std::map<int, Declaration> found;
    for (const auto& type : matches(headers, R"(Service (\d+)(?:, (needed|expected))?[\s\S]*?)"
                                             R"(\(\*(GPI\w+)\)\()")) {
        found[std::stoi(type[1])] = {type[3], type[2].matched ? type[2].str() : "optional"};
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
    const std::string header = read(HEADERS "/gpi.h");
    for (const auto& name : matches(header, R"(GPI_SERVICE_(\w+) = (\d+))")) {
        names[std::stoi(name[2])] = name[1];
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
