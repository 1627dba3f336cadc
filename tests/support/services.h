// Every service that a platform can offer, with its number and signature.
#pragma once

#include <gpi/gpi.h>

#include <type_traits>

namespace quarlo::test {

/// A service: its number and how it is called.
template <int Number, typename Pointer>
struct Offer {
    static constexpr int kNumber = Number;
    using Signature = std::remove_pointer_t<Pointer>;
};

template <typename... Offers>
struct OfferList : Offers... {
    template <typename Visitor>
    static void forEach(Visitor visit) {
        (visit(Offers()), ...);
    }
};

using Services = OfferList<
    // Start and stop.
    Offer<1, GPIStart>, Offer<2, GPIStop>, Offer<12, GPIStartSecond>, Offer<22, GPIStopFirst>,
    // Displays.
    Offer<3, GPIGetSurface>, Offer<4, GPIReleaseSurface>, Offer<5, GPISetPixel>, Offer<6, GPISpan>,
    Offer<7, GPINextPixel>, Offer<8, GPIBlockTransfer>, Offer<9, GPIFlush>,
    Offer<10, GPISetPalette>, Offer<11, GPIGetPalette>, Offer<43, GPICoveragePixel>,
    Offer<55, GPISetZoomScale>, Offer<56, GPISetScrollPos>, Offer<58, GPIFlushForce>,
    Offer<59, GPISetDrawableRegion>, Offer<60, GPIRemoveDrawableRegion>, Offer<67, GPIDrawRect>,
    Offer<68, GPIFillRect>, Offer<69, GPIFillPatternNotice>, Offer<70, GPIPatternRect>,
    Offer<119, GPIChangeVirtualSurface>,
    // Fonts and text.
    Offer<13, GPILoadFont>, Offer<14, GPISetFontSize>, Offer<15, GPIGetFontSize>,
    Offer<16, GPISetFontAttribute>, Offer<17, GPIGetFontAttribute>,
    Offer<18, GPISetFontUserAttribute>, Offer<19, GPIGetFontUserAttribute>, Offer<20, GPIGlyph>,
    Offer<21, GPIReleaseFont>, Offer<25, GPIGetFontInformation>, Offer<36, GPIStringLength>,
    Offer<37, GPIPreviousChar>, Offer<38, GPINextChar>, Offer<44, GPIDrawString>,
    Offer<61, GPIUnicodeToMultiByte>, Offer<62, GPIMultiByteToUnicode>,
    Offer<75, GPIDrawCaptionLine>, Offer<79, GPIIsLeadByte>, Offer<207, GPISetGBFontFlag>,
    // For tools.
    Offer<23, GPIDescribe>, Offer<24, GPICountSurfaces>, Offer<30, GPICountSignals>,
    // Events and time.
    Offer<26, GPIStartEventSignal>, Offer<27, GPISetSystemTime>, Offer<28, GPIGetSystemTime>,
    Offer<29, GPIStartEventLock>, Offer<31, GPISignalEvent>, Offer<32, GPIEventTaken>,
    Offer<33, GPIWaitEvent>, Offer<34, GPILockEvents>, Offer<35, GPIUnlockEvents>,
    Offer<76, GPITime>, Offer<77, GPIBrokenDownTime>, Offer<124, GPINextMessage>,
    // Memory spaces.
    Offer<39, GPISetMemorySpace>, Offer<40, GPIDeleteMemorySpace>, Offer<41, GPIMemoryAlloc>,
    Offer<42, GPIMemoryFree>, Offer<57, GPISetMemoryMode>, Offer<66, GPIMemoryRealloc>,
    Offer<80, GPIBeginResetMemorySpace>, Offer<81, GPIEndResetMemorySpace>,
    Offer<82, GPICancelResetMemorySpace>,
    // Modules, applications, search.
    Offer<45, GPILoadModule>, Offer<46, GPIFreeModule>, Offer<47, GPIGetModuleFunction>,
    Offer<78, GPISearch>, Offer<117, GPIExecute>, Offer<118, GPIExit>, Offer<128, GPILoadModuleEx>,
    // Files.
    Offer<48, GPIOpenFile>, Offer<49, GPICloseFile>, Offer<50, GPIReadFile>,
    Offer<51, GPIWriteFile>, Offer<52, GPISeekFile>, Offer<63, GPIMakePath>,
    Offer<64, GPISplitPath>, Offer<65, GPIReadLine>, Offer<71, GPIGetDirectory>,
    Offer<72, GPIReadByte>, Offer<73, GPIGetJpegInfo>, Offer<74, GPILoadJpeg>,
    Offer<120, GPIRenameFile>, Offer<121, GPIRemoveFile>, Offer<122, GPIGetFileAccess>,
    Offer<123, GPIGetFileSize>, Offer<125, GPIFlushAndCloseFile>,
    // Data-server files.
    Offer<129, GPIOpenDataFile>, Offer<130, GPIReadDataFile>, Offer<131, GPICloseDataFile>,
    Offer<132, GPISeekDataFile>, Offer<133, GPIGetDataFileSize>, Offer<134, GPIWriteDataFile>,
    Offer<135, GPIRenameDataFile>, Offer<136, GPIRemoveDataFile>, Offer<137, GPICreateDataFile>,
    // Profiles.
    Offer<53, GPIGetProfileInt>, Offer<54, GPIGetProfileString>, Offer<116, GPISetProfileString>,
    Offer<126, GPIGetProfileIntEx>, Offer<127, GPIGetProfileStringEx>,
    // Network.
    Offer<83, GPICrackUrl>, Offer<84, GPICreateUrl>, Offer<85, GPICanonicalizeUrl>,
    Offer<86, GPICombineUrl>, Offer<87, GPINetOpen>, Offer<88, GPINetCloseHandle>,
    Offer<89, GPINetConnect>, Offer<90, GPINetOpenUrl>, Offer<91, GPINetReadFile>,
    Offer<92, GPINetSetFilePointer>, Offer<93, GPINetWriteFile>,
    Offer<94, GPINetQueryDataAvailable>, Offer<95, GPINetFindNextFile>,
    Offer<96, GPINetQueryOption>, Offer<97, GPINetSetOption>, Offer<98, GPINetLockRequestFile>,
    Offer<99, GPINetUnlockRequestFile>, Offer<100, GPIHttpOpenRequest>,
    Offer<101, GPIHttpAddRequestHeaders>, Offer<102, GPIHttpSendRequest>,
    Offer<103, GPIHttpEndRequest>, Offer<104, GPIHttpQueryInfo>, Offer<105, GPIFtpFindFirstFile>,
    Offer<106, GPIFtpGetFile>, Offer<107, GPIFtpPutFile>, Offer<108, GPIFtpDeleteFile>,
    Offer<109, GPIFtpRenameFile>, Offer<110, GPIFtpOpenFile>, Offer<111, GPIFtpCreateDirectory>,
    Offer<112, GPIFtpRemoveDirectory>, Offer<113, GPIFtpSetCurrentDirectory>,
    Offer<114, GPIFtpGetCurrentDirectory>, Offer<115, GPINetGetLastError>,
    // Numerical-control data.
    Offer<200, GPISetNCValue>, Offer<201, GPIGetNCValue>, Offer<202, GPISetNCString>,
    Offer<203, GPIGetNCString>, Offer<204, GPIIsNCValueUnset>, Offer<205, GPISetNCSystemValue>,
    Offer<206, GPIGetNCSystemValue>>;

template <int Number, typename Pointer>
Offer<Number, Pointer> offerIn(const Offer<Number, Pointer>&);

/// The signature of a service, by number.
template <int Number>
using ServiceSignature = typename decltype(offerIn<Number>(Services()))::Signature;

} // namespace quarlo::test
