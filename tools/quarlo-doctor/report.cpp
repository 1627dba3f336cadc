#include "report.h"

#include <algorithm>
#include <iomanip>
#include <ostream>
#include <string>

namespace doctor {
namespace {

const char* wordFor(Need need) {
    switch (need) {
    case Need::Needed:
        return "needed";
    case Need::Expected:
        return "expected";
    case Need::Optional:
        break;
    }
    return "optional";
}

/// Upper case is what makes a platform unfit.
const char* wordFor(const Finding& finding) {
    switch (finding.state) {
    case State::Passed:
        return "passed";
    case State::Unknown:
        return "there";
    case State::Missing:
        return finding.service->need == Need::Needed ? "MISSING" : "missing";
    case State::Failed:
        break;
    }
    return "FAILED";
}

std::string remarkOn(const Finding& finding) {
    return finding.state == State::Missing ? std::string("without it ") + finding.service->without
                                           : finding.complaint;
}

auto count(const std::vector<Finding>& findings, State state) {
    return std::count_if(findings.begin(), findings.end(),
                         [=](const Finding& finding) { return finding.state == state; });
}

void printLine(std::ostream& out, const Finding& finding) {
    const std::string remark = remarkOn(finding);
    out << std::right << std::setw(3) << finding.service->number << "  " << std::left
        << std::setw(26) << finding.service->name << wordFor(finding);
    if (!remark.empty()) {
        out << "  " << remark;
    }
    out << '\n';
}

} // namespace

void printFindings(std::ostream& out, const std::vector<Finding>& findings) {
    for (const Finding& finding : findings) {
        printLine(out, finding);
    }
    out << findings.size() << " services: " << count(findings, State::Passed) << " passed, "
        << count(findings, State::Unknown) << " not probed, " << count(findings, State::Failed)
        << " failed, " << count(findings, State::Missing) << " missing\n";
}

void printServices(std::ostream& out) {
    for (const Group* const group : groups()) {
        out << "### " << group->title << "\n\n"
            << "| number | name | type | gives | need | asked | without it |\n"
            << "|---|---|---|---|---|---|---|\n";
        for (const Service& service : group->services) {
            out << "| " << service.number << " | `" << service.name << "` | `" << service.type
                << "` | " << service.gives << " | " << wordFor(service.need) << " | "
                << (service.asked == Asked::Late ? "late" : "at start") << " | " << service.without
                << " |\n";
        }
        out << '\n';
    }
}

} // namespace doctor
