// The network services as a program has them.
#pragma once

#include "support/started_platform.h"

#include <gpi/forwards.h>
#include <quarlo/network.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace gpi::test {

inline const auto crackUrl = service<GPICrackUrl>(83);
inline const auto createUrl = service<GPICreateUrl>(84);
inline const auto canonicalizeUrl = service<GPICanonicalizeUrl>(85);
inline const auto combineUrl = service<GPICombineUrl>(86);
inline const auto openSession = service<GPINetOpen>(87);
inline const auto closeHandle = service<GPINetCloseHandle>(88);
inline const auto connectTo = service<GPINetConnect>(89);
inline const auto openUrl = service<GPINetOpenUrl>(90);
inline const auto readFile = service<GPINetReadFile>(91);
inline const auto setFilePointer = service<GPINetSetFilePointer>(92);
inline const auto writeFile = service<GPINetWriteFile>(93);
inline const auto queryDataAvailable = service<GPINetQueryDataAvailable>(94);
inline const auto findNextFile = service<GPINetFindNextFile>(95);
inline const auto queryOption = service<GPINetQueryOption>(96);
inline const auto setOption = service<GPINetSetOption>(97);
inline const auto lockRequestFile = service<GPINetLockRequestFile>(98);
inline const auto unlockRequestFile = service<GPINetUnlockRequestFile>(99);
inline const auto openRequest = service<GPIHttpOpenRequest>(100);
inline const auto addRequestHeaders = service<GPIHttpAddRequestHeaders>(101);
inline const auto sendRequest = service<GPIHttpSendRequest>(102);
inline const auto endRequest = service<GPIHttpEndRequest>(103);
inline const auto queryInfo = service<GPIHttpQueryInfo>(104);
inline const auto findFirstFile = service<GPIFtpFindFirstFile>(105);
inline const auto getFile = service<GPIFtpGetFile>(106);
inline const auto putFile = service<GPIFtpPutFile>(107);
inline const auto deleteFile = service<GPIFtpDeleteFile>(108);
inline const auto renameFile = service<GPIFtpRenameFile>(109);
inline const auto openFile = service<GPIFtpOpenFile>(110);
inline const auto createDirectory = service<GPIFtpCreateDirectory>(111);
inline const auto removeDirectory = service<GPIFtpRemoveDirectory>(112);
inline const auto setCurrentDirectory = service<GPIFtpSetCurrentDirectory>(113);
inline const auto getCurrentDirectory = service<GPIFtpGetCurrentDirectory>(114);
inline const auto lastError = service<GPINetGetLastError>(115);

/// All that is left to read, or "failed".
inline std::string rest(GNetHandle* file) {
    std::string all;
    char piece[1000];
    for (;;) {
        const int32_t count = readFile(file, piece, sizeof piece);
        if (count <= 0) {
            return count == 0 ? all : "failed";
        }
        all.append(piece, static_cast<size_t>(count));
    }
}

/// As many bytes, or "failed".
inline std::string bytes(GNetHandle* file, int32_t count) {
    std::string text(static_cast<size_t>(count), '\0');
    const int32_t got = readFile(file, text.data(), count);
    return got >= 0 ? text.substr(0, static_cast<size_t>(got)) : "failed";
}

/// Sets an option to a number.
inline int32_t choose(GNetHandle* handle, int32_t option, int32_t value, uint32_t flags = 0) {
    return setOption(handle, option, &value, sizeof value, flags);
}

/// Sets an option to a text.
inline int32_t choose(GNetHandle* handle, int32_t option, const std::u16string& value,
                      uint32_t flags = 0) {
    return setOption(handle, option, value.data(), static_cast<int32_t>(value.size()), flags);
}

inline std::u16string textOption(GNetHandle* handle, int32_t option) {
    char16_t text[300];
    int32_t size = 300;
    return queryOption(handle, option, text, &size) == 1 ? text : u"failed";
}

inline int32_t numberOption(GNetHandle* handle, int32_t option) {
    int32_t value = -1;
    int32_t size = sizeof value;
    return queryOption(handle, option, &value, &size) == 1 ? value : -1;
}

inline int32_t status(GNetHandle* request) {
    int32_t value = -1;
    int32_t size = sizeof value;
    return queryInfo(request, G_HTTP_STATUS, &value, &size, nullptr) == 1 ? value : -1;
}

inline std::u16string textInfo(GNetHandle* request, int32_t info) {
    char16_t text[1000];
    int32_t size = 1000;
    return queryInfo(request, info, text, &size, nullptr) == 1 ? text : u"failed";
}

/// A header of an answer.
inline std::u16string header(GNetHandle* request, const std::u16string& name) {
    char16_t text[1000];
    name.copy(text, name.size());
    text[name.size()] = u'\0';
    int32_t size = 1000;
    return queryInfo(request, G_HTTP_HEADER, text, &size, nullptr) == 1 ? text : u"failed";
}

} // namespace gpi::test
