// Stepping through text, and converting it.
#include "probe.h"

#include <string_view>

namespace doctor {
namespace {

/// A letter, a character of two units, a letter.
constexpr char16_t kText[] = {u'a', 0xD83D, 0xDE00, u'b', u'\0'};

Complaint counts(const Platform& platform) {
    const auto length = platform.service<GPIStringLength>(GPI_SERVICE_STRING_LENGTH);
    if (length(kText, -1) != 3) {
        return "does not count characters";
    }
    if (length(kText, 1) != 1) {
        return "does not end at its limit";
    }
    return length(nullptr, -1) == 0 ? "" : "counts characters of no string";
}

Complaint stepsOn(const Platform& platform) {
    const auto next = platform.service<GPINextChar>(GPI_SERVICE_NEXT_CHAR);
    uint32_t character = 0;
    if (next(kText, nullptr, &character) != kText + 1 || character != u'a') {
        return "does not step over a letter";
    }
    if (next(kText + 1, nullptr, &character) != kText + 3 || character != 0x1F600) {
        return "does not step over a character of two units";
    }
    return next(kText + 4, nullptr, &character) == nullptr ? "" : "steps over the end";
}

Complaint stepsBack(const Platform& platform) {
    const auto previous = platform.service<GPIPreviousChar>(GPI_SERVICE_PREVIOUS_CHAR);
    uint32_t character = 0;
    if (previous(kText, kText + 4, &character) != kText + 3 || character != u'b') {
        return "does not step back over a letter";
    }
    if (previous(kText, kText + 3, &character) != kText + 1 || character != 0x1F600) {
        return "does not step back over a character of two units";
    }
    return previous(kText, kText, &character) == nullptr ? "" : "steps back over the begin";
}

Complaint narrows(const Platform& platform) {
    const auto convert = platform.service<GPIUnicodeToMultiByte>(GPI_SERVICE_UNICODE_TO_MULTI_BYTE);
    char out[8] = {};
    if (convert(u"G01", -1, nullptr, 0) != 4) {
        return "does not measure";
    }
    if (convert(u"G01", -1, out, sizeof out) != 4 || out != std::string_view("G01")) {
        return "does not convert letters and digits";
    }
    return convert(nullptr, -1, out, sizeof out) == 0 ? "" : "converts no text";
}

Complaint widens(const Platform& platform) {
    const auto convert = platform.service<GPIMultiByteToUnicode>(GPI_SERVICE_MULTI_BYTE_TO_UNICODE);
    char16_t out[8] = {};
    if (convert("G01", -1, nullptr, 0) != 4) {
        return "does not measure";
    }
    if (convert("G01", -1, out, 8) != 4 || out != std::u16string_view(u"G01")) {
        return "does not convert letters and digits";
    }
    return convert(nullptr, -1, out, 8) == 0 ? "" : "converts no text";
}

Complaint knowsLeadBytes(const Platform& platform) {
    constexpr int32_t kNoCodePage = -7;
    const auto isLead = platform.service<GPIIsLeadByte>(GPI_SERVICE_IS_LEAD_BYTE);
    if (isLead('A', G_CODE_PAGE_DEFAULT) != 0) {
        return "takes a letter for a lead byte";
    }
    return isLead(0x81, kNoCodePage) == 0 ? "" : "knows lead bytes of any code page";
}

} // namespace

std::span<const Probe> textProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_STRING_LENGTH, counts, {}},
        {GPI_SERVICE_NEXT_CHAR, stepsOn, {}},
        {GPI_SERVICE_PREVIOUS_CHAR, stepsBack, {}},
        {GPI_SERVICE_UNICODE_TO_MULTI_BYTE, narrows, {}},
        {GPI_SERVICE_MULTI_BYTE_TO_UNICODE, widens, {}},
        {GPI_SERVICE_IS_LEAD_BYTE, knowsLeadBytes, {}},
    };
    return kProbes;
}

} // namespace doctor
