/**
 * @file transfer.h
 * Block transfer between surfaces, and making a region of the display visible.
 */
#ifndef QUARLO_TRANSFER_H
#define QUARLO_TRANSFER_H

#include <quarlo/types.h>

QUARLO_BEGIN

/**
 * Copies a rectangle of pixels between two surfaces or within one, converting pixels where the
 * formats differ. Areas of one surface may overlap.
 *
 * Both rectangles are mapped by the handle and cut to the destination's `drawable` and the
 * source's `bounds`; what is cut from one is cut from the other. In virtual mode the smaller of the
 * two mapped sizes counts. A copy onto device surface 0 is handed to service 8.
 *
 * Nothing is copied when the handle or a surface is null, service 8 is missing, the size is zero or
 * negative, a surface has other than 8, 16 or 24 bits a pixel, or a source of channel masks meets a
 * palette destination. A palette source is looked up; an index past its palette reads as 0. Equal
 * formats copy raw values.
 *
 * @param source surface to read
 * @param sourceX left column, application coordinates
 * @param sourceY top row, application coordinates
 * @param width pixels
 * @param height pixels
 * @param destination surface to write
 * @param destinationX left column, application coordinates
 * @param destinationY top row, application coordinates
 * @param mode drawing mode, #G_MODE_COPY to #G_MODE_XOR, applied byte by byte; any other mode
 *     writes nothing (service 8 gets it as it is)
 */
QUARLO_API void GDBitBlt(GDrawHandle* handle, const GVram* source, int16_t sourceX, int16_t sourceY,
                         int16_t width, int16_t height, GVram* destination, int16_t destinationX,
                         int16_t destinationY, int32_t mode);

/**
 * Shows a rectangle of the display: maps it, cuts it to the handle's view and hands it to
 * service 9, which the platform must have. Drawing is not visible before.
 *
 * @param x left column, application coordinates
 * @param y top row, application coordinates
 * @param width pixels
 * @param height pixels
 * @return the service's result: 1 shown, 0 not; 0, and no service is called, when nothing of it is
 *     in the view or the size is zero or negative
 */
QUARLO_API int32_t GDFlushScreen(GDrawHandle* handle, int16_t x, int16_t y, int16_t width,
                                 int16_t height);

/**
 * GDFlushScreen() through service 58, which the platform must have: shows the rectangle now, where
 * the platform may put off what GDFlushScreen() asks for.
 */
QUARLO_API int32_t GDFlushScreenForce(GDrawHandle* handle, int16_t x, int16_t y, int16_t width,
                                      int16_t height);

QUARLO_END

#endif
