/**
 * @file quarlo.h
 * The whole interface of the library.
 */
#ifndef QUARLO_QUARLO_H
#define QUARLO_QUARLO_H

#include <quarlo/app.h>
#include <quarlo/clip.h>
#include <quarlo/convert.h>
#include <quarlo/data_server.h>
#include <quarlo/dirty.h>
#include <quarlo/draw.h>
#include <quarlo/event.h>
#include <quarlo/file.h>
#include <quarlo/font.h>
#include <quarlo/handle.h>
#include <quarlo/image.h>
#include <quarlo/line.h>
#include <quarlo/memory.h>
#include <quarlo/module.h>
#include <quarlo/nc_data.h>
#include <quarlo/network.h>
#include <quarlo/pixel_ops.h>
#include <quarlo/platform.h>
#include <quarlo/point.h>
#include <quarlo/poly.h>
#include <quarlo/profile.h>
#include <quarlo/rect.h>
#include <quarlo/search.h>
#include <quarlo/surface.h>
#include <quarlo/text.h>
#include <quarlo/timer.h>
#include <quarlo/transfer.h>
#include <quarlo/typed_memory.h>
#include <quarlo/types.h>

#endif
