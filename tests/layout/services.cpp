// Services that take an exported function's arguments as they are have its very signature.
#include <gpi/gpi.h>

#include <type_traits>

namespace {

template <typename Service, typename Function>
constexpr bool same(Function*) {
    return std::is_same_v<Service, Function*>;
}

static_assert(same<GPIStart>(&GDInitPlatform));                              // 1
static_assert(same<GPIStop>(&GDQuitPlatform));                               // 2
static_assert(same<GPIFlush>(&GDFlushScreen));                               // 9
static_assert(same<GPISetPalette>(&GDSetPalette));                           // 10
static_assert(same<GPIGetPalette>(&GDGetPalette));                           // 11
static_assert(same<GPIStartSecond>(&GDInitPlatform));                        // 12
static_assert(same<GPILoadFont>(&GFLoadFont));                               // 13
static_assert(same<GPISetFontSize>(&GFSetSize));                             // 14
static_assert(same<GPIGetFontSize>(&GFGetSize));                             // 15
static_assert(same<GPISetFontAttribute>(&GFSetFontAttribute));               // 16
static_assert(same<GPIGetFontAttribute>(&GFGetFontAttribute));               // 17
static_assert(same<GPISetFontUserAttribute>(&GFSetFontUserAttribute));       // 18
static_assert(same<GPIGetFontUserAttribute>(&GFGetFontUserAttribute));       // 19
static_assert(same<GPIReleaseFont>(&GFReleaseFont));                         // 21
static_assert(same<GPIStopFirst>(&GDQuitPlatform));                          // 22
static_assert(same<GPIGetFontInformation>(&GFGetFontInformation));           // 25
static_assert(same<GPISetSystemTime>(&GESetSystemTime));                     // 27
static_assert(same<GPIGetSystemTime>(&GEGetSystemTime));                     // 28
static_assert(same<GPIStringLength>(&GDGetStringLength));                    // 36
static_assert(same<GPIPreviousChar>(&GDGetPrevChar));                        // 37
static_assert(same<GPINextChar>(&GDGetNextChar));                            // 38
static_assert(same<GPISetMemorySpace>(&GMSetMemorySpace));                   // 39
static_assert(same<GPIDeleteMemorySpace>(&GMDeleteMemorySpace));             // 40
static_assert(same<GPIMemoryAlloc>(&GMMemoryAlloc));                         // 41
static_assert(same<GPIMemoryFree>(&GMMemoryFree));                           // 42
static_assert(same<GPILoadModule>(&GDFCLoadModule));                         // 45
static_assert(same<GPIFreeModule>(&GDFCFreeModule));                         // 46
static_assert(same<GPIGetModuleFunction>(&GDFCGetModuleFuncAddress));        // 47
static_assert(same<GPIOpenFile>(&GIOOpen));                                  // 48
static_assert(same<GPICloseFile>(&GIOClose));                                // 49
static_assert(same<GPIReadFile>(&GIORead));                                  // 50
static_assert(same<GPIWriteFile>(&GIOWrite));                                // 51
static_assert(same<GPISeekFile>(&GIOSeek));                                  // 52
static_assert(same<GPIGetProfileInt>(&GIOGetPrivateProfileInt));             // 53
static_assert(same<GPISetZoomScale>(&GDSetZoomScale));                       // 55
static_assert(same<GPISetScrollPos>(&GDSetScrollPos));                       // 56
static_assert(same<GPISetMemoryMode>(&GMSetMemoryMode));                     // 57
static_assert(same<GPIFlushForce>(&GDFlushScreenForce));                     // 58
static_assert(same<GPISetDrawableRegion>(&GDSetDrawableRegion));             // 59
static_assert(same<GPIRemoveDrawableRegion>(&GDRemoveDrawableRegion));       // 60
static_assert(same<GPIUnicodeToMultiByte>(&GRCUnicodeToMultiByte));          // 61
static_assert(same<GPIMultiByteToUnicode>(&GRCMultiByteToUnicode));          // 62
static_assert(same<GPIMakePath>(&GIOMakePath));                              // 63
static_assert(same<GPISplitPath>(&GIOSplitPath));                            // 64
static_assert(same<GPIReadLine>(&GIOGets));                                  // 65
static_assert(same<GPIMemoryRealloc>(&GMMemoryRealloc));                     // 66
static_assert(same<GPIGetDirectory>(&GIOGetDirectory));                      // 71
static_assert(same<GPIReadByte>(&GIOGetc));                                  // 72
static_assert(same<GPIGetJpegInfo>(&GIOJpegGetInfo));                        // 73
static_assert(same<GPILoadJpeg>(&GIOJpegLoad));                              // 74
static_assert(same<GPITime>(&GETime));                                       // 76
static_assert(same<GPIBrokenDownTime>(&GEGmTime));                           // 77
static_assert(same<GPISearch>(&GUBSearch));                                  // 78
static_assert(same<GPIIsLeadByte>(&GRCIsLeadByte));                          // 79
static_assert(same<GPIBeginResetMemorySpace>(&GMBeginResetMemorySpace));     // 80
static_assert(same<GPIEndResetMemorySpace>(&GMEndResetMemorySpace));         // 81
static_assert(same<GPICancelResetMemorySpace>(&GMCancelResetMemorySpace));   // 82
static_assert(same<GPICrackUrl>(&GNetCrackUrl));                             // 83
static_assert(same<GPICreateUrl>(&GNetCreateUrl));                           // 84
static_assert(same<GPICanonicalizeUrl>(&GNetCanonicalizeUrl));               // 85
static_assert(same<GPICombineUrl>(&GNetCombineUrl));                         // 86
static_assert(same<GPINetOpen>(&GNetOpen));                                  // 87
static_assert(same<GPINetCloseHandle>(&GNetCloseHandle));                    // 88
static_assert(same<GPINetConnect>(&GNetConnect));                            // 89
static_assert(same<GPINetOpenUrl>(&GNetOpenUrl));                            // 90
static_assert(same<GPINetReadFile>(&GNetReadFile));                          // 91
static_assert(same<GPINetSetFilePointer>(&GNetSetFilePointer));              // 92
static_assert(same<GPINetWriteFile>(&GNetWriteFile));                        // 93
static_assert(same<GPINetQueryDataAvailable>(&GNetQueryDataAvailable));      // 94
static_assert(same<GPINetFindNextFile>(&GNetFindNextFile));                  // 95
static_assert(same<GPINetQueryOption>(&GNetQueryOption));                    // 96
static_assert(same<GPINetSetOption>(&GNetSetOption));                        // 97
static_assert(same<GPINetLockRequestFile>(&GNetLockRequestFile));            // 98
static_assert(same<GPINetUnlockRequestFile>(&GNetUnlockRequestFile));        // 99
static_assert(same<GPIHttpOpenRequest>(&GNetHttpOpenRequest));               // 100
static_assert(same<GPIHttpAddRequestHeaders>(&GNetHttpAddRequestHeaders));   // 101
static_assert(same<GPIHttpSendRequest>(&GNetHttpSendRequest));               // 102
static_assert(same<GPIHttpEndRequest>(&GNetHttpEndRequest));                 // 103
static_assert(same<GPIHttpQueryInfo>(&GNetHttpQueryInfo));                   // 104
static_assert(same<GPIFtpFindFirstFile>(&GNetFtpFindFirstFile));             // 105
static_assert(same<GPIFtpGetFile>(&GNetFtpGetFile));                         // 106
static_assert(same<GPIFtpPutFile>(&GNetFtpPutFile));                         // 107
static_assert(same<GPIFtpDeleteFile>(&GNetFtpDeleteFile));                   // 108
static_assert(same<GPIFtpRenameFile>(&GNetFtpRenameFile));                   // 109
static_assert(same<GPIFtpOpenFile>(&GNetFtpOpenFile));                       // 110
static_assert(same<GPIFtpCreateDirectory>(&GNetFtpCreateDirectory));         // 111
static_assert(same<GPIFtpRemoveDirectory>(&GNetFtpRemoveDirectory));         // 112
static_assert(same<GPIFtpSetCurrentDirectory>(&GNetFtpSetCurrentDirectory)); // 113
static_assert(same<GPIFtpGetCurrentDirectory>(&GNetFtpGetCurrentDirectory)); // 114
static_assert(same<GPINetGetLastError>(&GNetGetLastError));                  // 115
static_assert(same<GPISetProfileString>(&GIOSetPrivateProfileString));       // 116
static_assert(same<GPIExecute>(&GAppExecute));                               // 117
static_assert(same<GPIExit>(&GAppExit));                                     // 118
static_assert(same<GPIChangeVirtualSurface>(&GDChangeVirtualVram));          // 119
static_assert(same<GPIRenameFile>(&GIORename));                              // 120
static_assert(same<GPIRemoveFile>(&GIORemove));                              // 121
static_assert(same<GPIGetFileAccess>(&GIOGetFileAccess));                    // 122
static_assert(same<GPIGetFileSize>(&GIOGetFileSize));                        // 123
static_assert(same<GPIFlushAndCloseFile>(&GIOFClose));                       // 125
static_assert(same<GPIGetProfileIntEx>(&GIOGetPrivateProfileIntEx));         // 126
static_assert(same<GPIGetProfileStringEx>(&GIOGetPrivateProfileStringEx));   // 127
static_assert(same<GPILoadModuleEx>(&GDFCLoadModuleEx));                     // 128
static_assert(same<GPIOpenDataFile>(&GIODSOpen));                            // 129
static_assert(same<GPIReadDataFile>(&GIODSRead));                            // 130
static_assert(same<GPICloseDataFile>(&GIODSClose));                          // 131
static_assert(same<GPISeekDataFile>(&GIODSSeek));                            // 132
static_assert(same<GPIGetDataFileSize>(&GIODSGetFileSize));                  // 133
static_assert(same<GPIWriteDataFile>(&GIODSWrite));                          // 134
static_assert(same<GPIRenameDataFile>(&GIODSRename));                        // 135
static_assert(same<GPIRemoveDataFile>(&GIODSRemove));                        // 136
static_assert(same<GPICreateDataFile>(&GIODSCreateFile));                    // 137
static_assert(same<GPISetNCValue>(&GNCDataSetGNCValue));                     // 200
static_assert(same<GPIGetNCValue>(&GNCDataGetGNCValue));                     // 201
static_assert(same<GPISetNCString>(&GNCDataSetString));                      // 202
static_assert(same<GPIGetNCString>(&GNCDataGetString));                      // 203
static_assert(same<GPIIsNCValueUnset>(&GNCDataIsNotaNumber));                // 204
static_assert(same<GPISetNCSystemValue>(&GNCDataSetSystemVal));              // 205
static_assert(same<GPIGetNCSystemValue>(&GNCDataGetSystemVal));              // 206
static_assert(same<GPISetGBFontFlag>(&GFSetGBFontFlag));                     // 207

// The services behind the slots of the device's pixel operations.
static_assert(std::is_same_v<GPISetPixel, decltype(GPixelOps::setPixel)>);
static_assert(std::is_same_v<GPISpan, decltype(GPixelOps::span)>);
static_assert(std::is_same_v<GPINextPixel, decltype(GPixelOps::nextPixel)>);
static_assert(std::is_same_v<GPICoveragePixel, decltype(GPixelOps::coveragePixel)>);
static_assert(std::is_same_v<GPIDrawRect, decltype(GPixelOps::drawRect)>);
static_assert(std::is_same_v<GPIFillRect, decltype(GPixelOps::fillRect)>);
static_assert(std::is_same_v<GPIPatternRect, decltype(GPixelOps::patternRect)>);

} // namespace
