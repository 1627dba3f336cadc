// Every service that a platform offers, with its number and signature.
#pragma once

#include <quarlo/clip.h>
#include <quarlo/draw.h>
#include <quarlo/handle.h>
#include <quarlo/memory.h>
#include <quarlo/pixel_ops.h>
#include <quarlo/platform.h>
#include <quarlo/surface.h>
#include <quarlo/transfer.h>

#include <cstdint>
#include <type_traits>

namespace quarlo::test {

/// A service: its number and what it is called as.
template <int Number, typename Signature>
struct Offer {
    static constexpr int kNumber = Number;
    using Type = Signature;
};

template <auto GPixelOps::*Slot>
using OperationOf =
    std::remove_pointer_t<std::remove_cvref_t<decltype(std::declval<GPixelOps>().*Slot)>>;

template <typename... Offers>
struct OfferList : Offers... {
    template <typename Visitor>
    static void forEach(Visitor visit) {
        (visit(Offers()), ...);
    }
};

using Services = OfferList<
    // Start and stop.
    Offer<1, GWord(GWord)>, Offer<2, GWord()>, Offer<12, GWord(GWord)>, Offer<22, GWord()>,
    // Display.
    Offer<3, GVram*(GDrawHandle*, int32_t)>, Offer<4, int32_t(GDrawHandle*, GVram*)>,
    Offer<5, OperationOf<&GPixelOps::setPixel>>, Offer<6, OperationOf<&GPixelOps::span>>,
    Offer<7, OperationOf<&GPixelOps::nextPixel>>, Offer<43, OperationOf<&GPixelOps::coveragePixel>>,
    Offer<67, OperationOf<&GPixelOps::drawRect>>, Offer<68, OperationOf<&GPixelOps::fillRect>>,
    Offer<70, OperationOf<&GPixelOps::patternRect>>,
    Offer<69, GWord(GDrawHandle*, GVram*, uint32_t, uint32_t, const uint8_t*)>,
    Offer<8, decltype(GDBitBlt)>, Offer<9, decltype(GDFlushScreen)>,
    Offer<58, decltype(GDFlushScreenForce)>, Offer<10, decltype(GDSetPalette)>,
    Offer<11, decltype(GDGetPalette)>, Offer<55, decltype(GDSetZoomScale)>,
    Offer<56, decltype(GDSetScrollPos)>, Offer<59, decltype(GDSetDrawableRegion)>,
    Offer<60, decltype(GDRemoveDrawableRegion)>, Offer<119, decltype(GDChangeVirtualVram)>,
    // Memory.
    Offer<39, decltype(GMSetMemorySpace)>, Offer<40, decltype(GMDeleteMemorySpace)>,
    Offer<41, decltype(GMMemoryAlloc)>, Offer<66, decltype(GMMemoryRealloc)>,
    Offer<42, decltype(GMMemoryFree)>, Offer<57, decltype(GMSetMemoryMode)>,
    Offer<80, decltype(GMBeginResetMemorySpace)>, Offer<81, decltype(GMEndResetMemorySpace)>,
    Offer<82, decltype(GMCancelResetMemorySpace)>>;

template <int Number, typename Signature>
std::type_identity<Signature> signatureIn(const Offer<Number, Signature>&);

/// The signature of a service, by number.
template <int Number>
using ServiceSignature = typename decltype(signatureIn<Number>(Services()))::type;

} // namespace quarlo::test
