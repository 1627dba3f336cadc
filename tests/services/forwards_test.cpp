// Every forward: each argument and the result pass unchanged, and a missing service gives zero.
#include "support/recording_platform.h"

#include <quarlo/quarlo.h>

#include <gtest/gtest.h>

#include <cctype>
#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

using namespace quarlo::test;

namespace {

/// When a function looks for a service that was missing at start-up.
enum class Binding { OnEveryCall, Never };

/// Distinct arguments of any types: the n-th is n thousand and some, whatever its type.
template <typename Value>
Value argument(size_t n) {
    return fromWord<std::remove_cv_t<Value>>(static_cast<int64_t>(1000 * n + 1234));
}

/// One exported function and its service.
struct Forward {
    std::string name;
    int service;
    Binding binding;
    bool ignoresResult;
    /// Calls the function; gives its result and the call that must have reached the platform.
    std::function<std::pair<int64_t, ServiceCall>()> run;
};

template <typename R, typename... Args, size_t... N>
Forward describe(const char* name, int service, Binding binding, R (*function)(Args...),
                 std::index_sequence<N...>) {
    const auto run = [=]() -> std::pair<int64_t, ServiceCall> {
        const std::tuple<Args...> arguments = {argument<Args>(N)...};
        return {asWord(std::apply(function, arguments)),
                ServiceCall{service, {asWord(std::get<N>(arguments))...}}};
    };
    return {name, service, binding, false, run};
}

template <typename R, typename... Args>
Forward onEveryCall(const char* name, int service, R (*function)(Args...)) {
    return describe(name, service, Binding::OnEveryCall, function,
                    std::index_sequence_for<Args...>());
}

template <typename R, typename... Args>
Forward fixed(const char* name, int service, R (*function)(Args...)) {
    return describe(name, service, Binding::Never, function, std::index_sequence_for<Args...>());
}

Forward withoutResult(Forward forward) {
    forward.ignoresResult = true;
    return forward;
}

class Forwards : public testing::TestWithParam<Forward> {
  protected:
    RecordingPlatform platform;
};

TEST_P(Forwards, PassArgumentsAndResult) {
    for (const int32_t answer : {0, 1, -5, 0x12345678}) {
        platform.forget();
        platform.answer(GetParam().service, answer);
        const auto [result, expected] = GetParam().run();
        EXPECT_EQ(static_cast<int32_t>(result), GetParam().ignoresResult ? 1 : answer);
        EXPECT_EQ(platform.calls, std::vector{expected});
    }
}

TEST_P(Forwards, GiveZeroWithoutTheirService) {
    platform.remove({GetParam().service});
    for (size_t calls = 1; calls <= 2; ++calls) {
        EXPECT_EQ(GetParam().run().first, 0);
        EXPECT_EQ(platform.requests, std::vector(GetParam().binding == Binding::Never ? 0 : calls,
                                                 GetParam().service));
    }
    EXPECT_TRUE(platform.calls.empty());
}

TEST_P(Forwards, FindALateServiceOnlyIfTheyLookAgain) {
    platform.remove({GetParam().service});
    GetParam().run();
    platform.restore(GetParam().service);
    platform.answer(GetParam().service, 7);
    const bool found = GetParam().binding == Binding::OnEveryCall;
    EXPECT_EQ(GetParam().run().first != 0, found);
    EXPECT_EQ(platform.count(GetParam().service), found ? 1U : 0U);
}

TEST_P(Forwards, WorkBeforeBindingOnlyIfTheyLookThemselves) {
    platform.unbind();
    platform.answer(GetParam().service, 7);
    const bool found = GetParam().binding == Binding::OnEveryCall;
    EXPECT_EQ(GetParam().run().first != 0, found);
    GetParam().run();
    EXPECT_EQ(platform.requests.size(), found ? 1U : 0U);
}

std::string nameOf(const testing::TestParamInfo<Forward>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Modules, Forwards,
                         testing::Values(onEveryCall("GDFCLoadModule", 45, GDFCLoadModule),
                                         onEveryCall("GDFCLoadModuleEx", 128, GDFCLoadModuleEx),
                                         onEveryCall("GDFCFreeModule", 46, GDFCFreeModule),
                                         onEveryCall("GDFCGetModuleFuncAddress", 47,
                                                     GDFCGetModuleFuncAddress)),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(
    Files, Forwards,
    testing::Values(onEveryCall("GIOOpen", 48, GIOOpen), onEveryCall("GIOClose", 49, GIOClose),
                    onEveryCall("GIOFClose", 125, GIOFClose), onEveryCall("GIORead", 50, GIORead),
                    onEveryCall("GIOWrite", 51, GIOWrite), onEveryCall("GIOSeek", 52, GIOSeek),
                    onEveryCall("GIOGets", 65, GIOGets), onEveryCall("GIOGetc", 72, GIOGetc),
                    onEveryCall("GIORename", 120, GIORename),
                    onEveryCall("GIORemove", 121, GIORemove),
                    onEveryCall("GIOGetFileAccess", 122, GIOGetFileAccess),
                    withoutResult(onEveryCall("GIOGetFileSize", 123, GIOGetFileSize)),
                    onEveryCall("GIOGetDirectory", 71, GIOGetDirectory),
                    onEveryCall("GIOMakePath", 63, GIOMakePath),
                    onEveryCall("GIOSplitPath", 64, GIOSplitPath),
                    onEveryCall("GIOJpegGetInfo", 73, GIOJpegGetInfo),
                    onEveryCall("GIOJpegLoad", 74, GIOJpegLoad)),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    Profiles, Forwards,
    testing::Values(onEveryCall("GIOGetPrivateProfileInt", 53, GIOGetPrivateProfileInt),
                    onEveryCall("GIOGetPrivateProfileIntEx", 126, GIOGetPrivateProfileIntEx),
                    onEveryCall("GIOGetPrivateProfileString", 54, GIOGetPrivateProfileString),
                    onEveryCall("GIOGetPrivateProfileStringEx", 127, GIOGetPrivateProfileStringEx),
                    onEveryCall("GIOSetPrivateProfileString", 116, GIOSetPrivateProfileString)),
    nameOf);

INSTANTIATE_TEST_SUITE_P(DataServerFiles, Forwards,
                         testing::Values(onEveryCall("GIODSOpen", 129, GIODSOpen),
                                         onEveryCall("GIODSClose", 131, GIODSClose),
                                         onEveryCall("GIODSRead", 130, GIODSRead),
                                         onEveryCall("GIODSWrite", 134, GIODSWrite),
                                         onEveryCall("GIODSSeek", 132, GIODSSeek),
                                         withoutResult(onEveryCall("GIODSGetFileSize", 133,
                                                                   GIODSGetFileSize)),
                                         onEveryCall("GIODSRename", 135, GIODSRename),
                                         onEveryCall("GIODSRemove", 136, GIODSRemove),
                                         onEveryCall("GIODSCreateFile", 137, GIODSCreateFile)),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(
    Network, Forwards,
    testing::Values(
        fixed("GNetCrackUrl", 83, GNetCrackUrl), fixed("GNetCreateUrl", 84, GNetCreateUrl),
        fixed("GNetCanonicalizeUrl", 85, GNetCanonicalizeUrl),
        fixed("GNetCombineUrl", 86, GNetCombineUrl), fixed("GNetOpen", 87, GNetOpen),
        fixed("GNetCloseHandle", 88, GNetCloseHandle), fixed("GNetConnect", 89, GNetConnect),
        fixed("GNetOpenUrl", 90, GNetOpenUrl), fixed("GNetReadFile", 91, GNetReadFile),
        fixed("GNetSetFilePointer", 92, GNetSetFilePointer),
        fixed("GNetWriteFile", 93, GNetWriteFile),
        fixed("GNetQueryDataAvailable", 94, GNetQueryDataAvailable),
        fixed("GNetFindNextFile", 95, GNetFindNextFile),
        fixed("GNetQueryOption", 96, GNetQueryOption), fixed("GNetSetOption", 97, GNetSetOption),
        fixed("GNetLockRequestFile", 98, GNetLockRequestFile),
        fixed("GNetUnlockRequestFile", 99, GNetUnlockRequestFile),
        fixed("GNetGetLastError", 115, GNetGetLastError)),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Http, Forwards,
                         testing::Values(fixed("GNetHttpOpenRequest", 100, GNetHttpOpenRequest),
                                         fixed("GNetHttpAddRequestHeaders", 101,
                                               GNetHttpAddRequestHeaders),
                                         fixed("GNetHttpSendRequest", 102, GNetHttpSendRequest),
                                         fixed("GNetHttpEndRequest", 103, GNetHttpEndRequest),
                                         fixed("GNetHttpQueryInfo", 104, GNetHttpQueryInfo)),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(
    Ftp, Forwards,
    testing::Values(fixed("GNetFtpFindFirstFile", 105, GNetFtpFindFirstFile),
                    fixed("GNetFtpGetFile", 106, GNetFtpGetFile),
                    fixed("GNetFtpPutFile", 107, GNetFtpPutFile),
                    fixed("GNetFtpDeleteFile", 108, GNetFtpDeleteFile),
                    fixed("GNetFtpRenameFile", 109, GNetFtpRenameFile),
                    fixed("GNetFtpOpenFile", 110, GNetFtpOpenFile),
                    fixed("GNetFtpCreateDirectory", 111, GNetFtpCreateDirectory),
                    fixed("GNetFtpRemoveDirectory", 112, GNetFtpRemoveDirectory),
                    fixed("GNetFtpSetCurrentDirectory", 113, GNetFtpSetCurrentDirectory),
                    fixed("GNetFtpGetCurrentDirectory", 114, GNetFtpGetCurrentDirectory)),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Applications, Forwards,
                         testing::Values(fixed("GAppExecute", 117, GAppExecute),
                                         fixed("GAppExit", 118, GAppExit)),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(
    NumericalControlData, Forwards,
    testing::Values(onEveryCall("GNCDataSetGNCValue", 200, GNCDataSetGNCValue),
                    onEveryCall("GNCDataGetGNCValue", 201, GNCDataGetGNCValue),
                    onEveryCall("GNCDataSetString", 202, GNCDataSetString),
                    onEveryCall("GNCDataGetString", 203, GNCDataGetString),
                    onEveryCall("GNCDataIsNotaNumber", 204, GNCDataIsNotaNumber),
                    onEveryCall("GNCDataSetSystemVal", 205, GNCDataSetSystemVal),
                    onEveryCall("GNCDataGetSystemVal", 206, GNCDataGetSystemVal)),
    nameOf);

INSTANTIATE_TEST_SUITE_P(Search, Forwards, testing::Values(fixed("GUBSearch", 78, GUBSearch)),
                         nameOf);

TEST(GIORead, TouchesNothingWithoutItsService) {
    RecordingPlatform platform;
    platform.remove({50});
    char buffer[4] = {1, 2, 3, 4};
    int32_t done = 77;
    EXPECT_EQ(GIORead(nullptr, buffer, 4, &done), 0);
    EXPECT_EQ(done, 77);
    EXPECT_EQ(std::string(buffer, 4), std::string("\1\2\3\4"));
}

TEST(GIOGets, IsBoundByItsFirstCallAfterStartUp) {
    RecordingPlatform platform;
    char line[4] = {};
    EXPECT_EQ(GIOGets(nullptr, line, 4), 1);
    EXPECT_EQ(platform.requests, std::vector{65});
}

TEST(GIOGetPrivateProfileString, PassesTheLayerAsSixteenBitsZeroExtended) {
    RecordingPlatform platform;
    GIOGetPrivateProfileString(u"s", u"k", nullptr, nullptr, 0, static_cast<uint16_t>(-1), u"f");
    ASSERT_EQ(platform.count(54), 1U);
    EXPECT_EQ(platform.calls[0].arguments[5], 0xFFFF);
}

TEST(GNCDataGetGNCValue, StartsToWorkWithItsServiceUnlikeANetworkCall) {
    RecordingPlatform platform;
    platform.remove({201, 115});
    EXPECT_EQ(GNCDataGetGNCValue(0, 0, 0, 0, nullptr), 0);
    EXPECT_EQ(GNetGetLastError(), 0);
    platform.restore(201);
    platform.restore(115);
    EXPECT_EQ(GNCDataGetGNCValue(0, 0, 0, 0, nullptr), 1);
    EXPECT_EQ(GNetGetLastError(), 0);
}

} // namespace
