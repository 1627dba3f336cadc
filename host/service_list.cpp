#include "service_list.h"

#include "app/services.h"
#include "clock/services.h"
#include "data_server/services.h"
#include "display/services.h"
#include "event/services.h"
#include "file/services.h"
#include "font/services.h"
#include "jpeg/services.h"
#include "lifecycle.h"
#include "memory/services.h"
#include "message/services.h"
#include "module/services.h"
#include "nc/services.h"
#include "net/service_list.h"
#include "profile/services.h"
#include "search/services.h"
#include "service_entry.h"
#include "text/services.h"
#include "text/string_drawing.h"

namespace gpi {
GPIFunction serviceOf(int32_t number) {
    // Inside, so that it is there also for a program that asks before main().
    static const ServiceEntry services[] = {
        offer<GPIStart>(GPI_SERVICE_START, startPlatform),
        offer<GPIStop>(GPI_SERVICE_STOP, stopPlatform),
        offer<GPIStartSecond>(GPI_SERVICE_START_SECOND, openDisplay),
        offer<GPIStopFirst>(GPI_SERVICE_STOP_FIRST, closeDisplay),

        offer<GPIGetSurface>(GPI_SERVICE_GET_SURFACE, getSurface),
        offer<GPIReleaseSurface>(GPI_SERVICE_RELEASE_SURFACE, releaseSurface),
        offer<GPISetPixel>(GPI_SERVICE_SET_PIXEL, setPixel),
        offer<GPISpan>(GPI_SERVICE_SPAN, span),
        offer<GPINextPixel>(GPI_SERVICE_NEXT_PIXEL, nextPixel),
        offer<GPIBlockTransfer>(GPI_SERVICE_BLOCK_TRANSFER, blockTransfer),
        offer<GPIFlush>(GPI_SERVICE_FLUSH, flush),
        offer<GPISetPalette>(GPI_SERVICE_SET_PALETTE, setPalette),
        offer<GPIGetPalette>(GPI_SERVICE_GET_PALETTE, getPalette),
        offer<GPICoveragePixel>(GPI_SERVICE_COVERAGE_PIXEL, coveragePixel),
        offer<GPISetZoomScale>(GPI_SERVICE_SET_ZOOM_SCALE, setZoomScale),
        offer<GPISetScrollPos>(GPI_SERVICE_SET_SCROLL_POS, setScrollPos),
        offer<GPIFlushForce>(GPI_SERVICE_FLUSH_FORCE, flushForce),
        offer<GPISetDrawableRegion>(GPI_SERVICE_SET_DRAWABLE_REGION, setDrawableRegion),
        offer<GPIRemoveDrawableRegion>(GPI_SERVICE_REMOVE_DRAWABLE_REGION, removeDrawableRegion),
        offer<GPIDrawRect>(GPI_SERVICE_DRAW_RECT, fillRect),
        offer<GPIFillRect>(GPI_SERVICE_FILL_RECT, fillRect),
        offer<GPIFillPatternNotice>(GPI_SERVICE_FILL_PATTERN_NOTICE, fillPatternNotice),
        offer<GPIPatternRect>(GPI_SERVICE_PATTERN_RECT, patternRect),
        offer<GPIChangeVirtualSurface>(GPI_SERVICE_CHANGE_VIRTUAL_SURFACE, changeVirtualSurface),

        offer<GPILoadFont>(GPI_SERVICE_LOAD_FONT, loadFont),
        offer<GPISetFontSize>(GPI_SERVICE_SET_FONT_SIZE, setFontSize),
        offer<GPIGetFontSize>(GPI_SERVICE_GET_FONT_SIZE, getFontSize),
        offer<GPISetFontAttribute>(GPI_SERVICE_SET_FONT_ATTRIBUTE, setFontAttribute),
        offer<GPIGetFontAttribute>(GPI_SERVICE_GET_FONT_ATTRIBUTE, getFontAttribute),
        offer<GPISetFontUserAttribute>(GPI_SERVICE_SET_FONT_USER_ATTRIBUTE, setFontUserAttribute),
        offer<GPIGetFontUserAttribute>(GPI_SERVICE_GET_FONT_USER_ATTRIBUTE, getFontUserAttribute),
        offer<GPIGlyph>(GPI_SERVICE_GLYPH, findGlyph),
        offer<GPIReleaseFont>(GPI_SERVICE_RELEASE_FONT, releaseFont),
        offer<GPIGetFontInformation>(GPI_SERVICE_GET_FONT_INFORMATION, getFontInformation),
        offer<GPISetGBFontFlag>(GPI_SERVICE_SET_GB_FONT_FLAG, setGbFontFlag),

        offer<GPIDrawString>(GPI_SERVICE_DRAW_STRING, drawString),
        offer<GPIDrawCaptionLine>(GPI_SERVICE_DRAW_CAPTION_LINE, drawCaptionLine),
        offer<GPIStringLength>(GPI_SERVICE_STRING_LENGTH, stringLength),
        offer<GPIPreviousChar>(GPI_SERVICE_PREVIOUS_CHAR, previousChar),
        offer<GPINextChar>(GPI_SERVICE_NEXT_CHAR, nextChar),
        offer<GPIUnicodeToMultiByte>(GPI_SERVICE_UNICODE_TO_MULTI_BYTE, unicodeToMultiByte),
        offer<GPIMultiByteToUnicode>(GPI_SERVICE_MULTI_BYTE_TO_UNICODE, multiByteToUnicode),
        offer<GPIIsLeadByte>(GPI_SERVICE_IS_LEAD_BYTE, isLeadByteOf),

        offer<GPIDescribe>(GPI_SERVICE_DESCRIBE, describePlatform),
        offer<GPICountSurfaces>(GPI_SERVICE_COUNT_SURFACES, countSurfaces),
        offer<GPICountSignals>(GPI_SERVICE_COUNT_SIGNALS, countSignals),

        offer<GPIStartEventLock>(GPI_SERVICE_START_EVENT_LOCK, startEventLock),
        offer<GPIStartEventSignal>(GPI_SERVICE_START_EVENT_SIGNAL, startEventSignal),
        offer<GPISignalEvent>(GPI_SERVICE_SIGNAL_EVENT, signalEvent),
        offer<GPIEventTaken>(GPI_SERVICE_EVENT_TAKEN, eventTaken),
        offer<GPIWaitEvent>(GPI_SERVICE_WAIT_EVENT, waitEvent),
        offer<GPILockEvents>(GPI_SERVICE_LOCK_EVENTS, lockEvents),
        offer<GPIUnlockEvents>(GPI_SERVICE_UNLOCK_EVENTS, unlockEvents),

        offer<GPINextMessage>(GPI_SERVICE_NEXT_MESSAGE, nextMessage),
        offer<GPIExecute>(GPI_SERVICE_EXECUTE, executeProgram),
        offer<GPIExit>(GPI_SERVICE_EXIT, exitProgram),

        offer<GPILoadModule>(GPI_SERVICE_LOAD_MODULE, loadModule),
        offer<GPILoadModuleEx>(GPI_SERVICE_LOAD_MODULE_EX, loadModuleEx),
        offer<GPIFreeModule>(GPI_SERVICE_FREE_MODULE, freeModule),
        offer<GPIGetModuleFunction>(GPI_SERVICE_GET_MODULE_FUNCTION, getModuleFunction),
        offer<GPISearch>(GPI_SERVICE_SEARCH, search),

        offer<GPISetSystemTime>(GPI_SERVICE_SET_SYSTEM_TIME, setSystemTime),
        offer<GPIGetSystemTime>(GPI_SERVICE_GET_SYSTEM_TIME, getSystemTime),
        offer<GPITime>(GPI_SERVICE_TIME, timeOfDay),
        offer<GPIBrokenDownTime>(GPI_SERVICE_BROKEN_DOWN_TIME, breakDownTime),

        offer<GPISetMemorySpace>(GPI_SERVICE_SET_MEMORY_SPACE, setMemorySpace),
        offer<GPIDeleteMemorySpace>(GPI_SERVICE_DELETE_MEMORY_SPACE, deleteMemorySpace),
        offer<GPIMemoryAlloc>(GPI_SERVICE_MEMORY_ALLOC, memoryAlloc),
        offer<GPIMemoryFree>(GPI_SERVICE_MEMORY_FREE, memoryFree),
        offer<GPISetMemoryMode>(GPI_SERVICE_SET_MEMORY_MODE, setMemoryMode),
        offer<GPIMemoryRealloc>(GPI_SERVICE_MEMORY_REALLOC, memoryRealloc),
        offer<GPIBeginResetMemorySpace>(GPI_SERVICE_BEGIN_RESET_MEMORY_SPACE,
                                        beginResetMemorySpace),
        offer<GPIEndResetMemorySpace>(GPI_SERVICE_END_RESET_MEMORY_SPACE, endResetMemorySpace),
        offer<GPICancelResetMemorySpace>(GPI_SERVICE_CANCEL_RESET_MEMORY_SPACE,
                                         cancelResetMemorySpace),

        offer<GPIOpenFile>(GPI_SERVICE_OPEN_FILE, openFile),
        offer<GPICloseFile>(GPI_SERVICE_CLOSE_FILE, closeFile),
        offer<GPIReadFile>(GPI_SERVICE_READ_FILE, readFile),
        offer<GPIWriteFile>(GPI_SERVICE_WRITE_FILE, writeFile),
        offer<GPISeekFile>(GPI_SERVICE_SEEK_FILE, seekFile),
        offer<GPIMakePath>(GPI_SERVICE_MAKE_PATH, makePath),
        offer<GPISplitPath>(GPI_SERVICE_SPLIT_PATH, splitPath),
        offer<GPIReadLine>(GPI_SERVICE_READ_LINE, readLine),
        offer<GPIGetDirectory>(GPI_SERVICE_GET_DIRECTORY, getDirectory),
        offer<GPIReadByte>(GPI_SERVICE_READ_BYTE, readByte),
        offer<GPIRenameFile>(GPI_SERVICE_RENAME_FILE, renameFile),
        offer<GPIRemoveFile>(GPI_SERVICE_REMOVE_FILE, removeFile),
        offer<GPIGetFileAccess>(GPI_SERVICE_GET_FILE_ACCESS, getFileAccess),
        offer<GPIGetFileSize>(GPI_SERVICE_GET_FILE_SIZE, getFileSize),
        offer<GPIFlushAndCloseFile>(GPI_SERVICE_FLUSH_AND_CLOSE_FILE, flushAndCloseFile),

        offer<GPIOpenDataFile>(GPI_SERVICE_OPEN_DATA_FILE, openDataFile),
        offer<GPIReadDataFile>(GPI_SERVICE_READ_DATA_FILE, readDataFile),
        offer<GPICloseDataFile>(GPI_SERVICE_CLOSE_DATA_FILE, closeDataFile),
        offer<GPISeekDataFile>(GPI_SERVICE_SEEK_DATA_FILE, seekDataFile),
        offer<GPIGetDataFileSize>(GPI_SERVICE_GET_DATA_FILE_SIZE, getDataFileSize),
        offer<GPIWriteDataFile>(GPI_SERVICE_WRITE_DATA_FILE, writeDataFile),
        offer<GPIRenameDataFile>(GPI_SERVICE_RENAME_DATA_FILE, renameDataFile),
        offer<GPIRemoveDataFile>(GPI_SERVICE_REMOVE_DATA_FILE, removeDataFile),
        offer<GPICreateDataFile>(GPI_SERVICE_CREATE_DATA_FILE, createDataFile),

        offer<GPIGetJpegInfo>(GPI_SERVICE_GET_JPEG_INFO, getJpegInfo),
        offer<GPILoadJpeg>(GPI_SERVICE_LOAD_JPEG, loadJpeg),

        offer<GPIGetProfileInt>(GPI_SERVICE_GET_PROFILE_INT, getProfileInt),
        offer<GPIGetProfileString>(GPI_SERVICE_GET_PROFILE_STRING, getProfileString),
        offer<GPISetProfileString>(GPI_SERVICE_SET_PROFILE_STRING, setProfileString),
        offer<GPIGetProfileIntEx>(GPI_SERVICE_GET_PROFILE_INT_EX, getProfileIntEx),
        offer<GPIGetProfileStringEx>(GPI_SERVICE_GET_PROFILE_STRING_EX, getProfileStringEx),

        offer<GPISetNCValue>(GPI_SERVICE_SET_NC_VALUE, setNcValue),
        offer<GPIGetNCValue>(GPI_SERVICE_GET_NC_VALUE, getNcValue),
        offer<GPISetNCString>(GPI_SERVICE_SET_NC_STRING, setNcString),
        offer<GPIGetNCString>(GPI_SERVICE_GET_NC_STRING, getNcString),
        offer<GPIIsNCValueUnset>(GPI_SERVICE_IS_NC_VALUE_UNSET, isNcValueUnset),
        offer<GPISetNCSystemValue>(GPI_SERVICE_SET_NC_SYSTEM_VALUE, setNcSystemValue),
        offer<GPIGetNCSystemValue>(GPI_SERVICE_GET_NC_SYSTEM_VALUE, getNcSystemValue),
    };
    const bool wholeString =
        number == GPI_SERVICE_DRAW_STRING || number == GPI_SERVICE_DRAW_CAPTION_LINE;
    if (wholeString && !drawsWholeStrings()) {
        return nullptr;
    }
    const GPIFunction function = find(services, number);
    return function != nullptr ? function : networkServiceOf(number);
}

} // namespace gpi
