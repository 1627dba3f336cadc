// Displays: services 3 to 11, 24, 43, 55, 56, 58 to 60, 67 to 70 and 119.
#pragma once

#include <quarlo/surface.h>

namespace gpi {

GVram* getSurface(GDrawHandle* handle, int32_t number);
int32_t releaseSurface(GDrawHandle* handle, GVram* surface);
int32_t countSurfaces();

int32_t setPixel(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                 int32_t mode);
int32_t span(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
             int32_t mode, int16_t count);
int32_t nextPixel();
int32_t coveragePixel(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                      int32_t mode, int32_t level);
int32_t fillRect(GDrawHandle* handle, GVram* surface, const GRect* rect, uint32_t pixel,
                 int32_t mode);
int32_t patternRect(GDrawHandle* handle, GVram* surface, const GRect* rect, uint32_t fore,
                    uint32_t back, int32_t mode, const uint8_t pattern[8]);
int32_t fillPatternNotice(GDrawHandle* handle, GVram* surface, uint32_t fore, uint32_t back,
                          const uint8_t pattern[8]);
int32_t blockTransfer(GDrawHandle* handle, const GVram* source, int16_t sourceX, int16_t sourceY,
                      int16_t width, int16_t height, GVram* destination, int16_t destinationX,
                      int16_t destinationY, int32_t mode);

int32_t flush(GDrawHandle* handle, int16_t left, int16_t top, int16_t width, int16_t height);
int32_t flushForce(GDrawHandle* handle, int16_t left, int16_t top, int16_t width, int16_t height);

GWord setPalette(GDrawHandle* handle, int32_t first, int32_t count, const uint32_t* colors);
GWord getPalette(GDrawHandle* handle, int32_t first, int32_t count, uint32_t* colors);

int32_t setDrawableRegion(GDrawHandle* handle, const GRect* region);
int32_t removeDrawableRegion(GDrawHandle* handle, const GRect* region);

GWord setZoomScale(GDrawHandle* handle, int32_t x, int32_t y);
GWord setScrollPos(GDrawHandle* handle, int32_t x, int32_t y);
GWord changeVirtualSurface(GWord number, GWord reserved);

} // namespace gpi
