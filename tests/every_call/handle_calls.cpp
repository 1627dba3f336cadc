#include "every_call/calls.h"

namespace quarlo::test {

ProgramCalls handleCalls() {
    return {
        own("GDOpenDrawHandle",
            [](Panel& panel) {
                const auto first = panel.number<GWord>(0);
                panel.openHandle(first, panel.number<GWord>(0));
            }),
        own("GDCloseDrawHandle", [](Panel& panel) { panel.closeHandle(); }),
        with("GDBeginDraw", GDBeginDraw),
        with("GDEndDraw", GDEndDraw),
        with("GDSetDisplay", GDSetDisplay, {0}),
        with("GDSetForeColor", GDSetForeColor, {0x8040C0}),
        with("GDSetBackColor", GDSetBackColor, {0x204060}),
        with("GDSetPenColor", GDSetPenColor, {0xFFFFFF}),
        with("GDSetFillColor", GDSetFillColor, {0x8040C0, 0x204060}),
        with("GDSetFillPattern", GDSetFillPattern, {5}),
        with("GDSetFillAttribute", GDSetFillAttribute, {6, 0x8040C0, 0x204060}),
        with("GDSetBrush", GDSetBrush),
        with("GDDefineFillPattern", GDDefineFillPattern, {5}),
        with("GDDefinePenDash", GDDefinePenDash, {2}),
        with("GDSetPenDash", GDSetPenDash, {2}),
        with("GDSetPenJoin", GDSetPenJoin, {G_JOIN_ROUND}),
        with("GDSetPenSize", GDSetPenSize, {3, 3}),
        with("GDSetDrawingMode", GDSetDrawingMode, {G_MODE_XOR}),
        with("GDSetTextMode", GDSetTextMode, {1}),
        with("GDSetTextAlign", GDSetTextAlign, {0}),
        with("GDSetGradationInfo", GDSetGradationInfo),
        with("GDSetPalette", GDSetPalette, {0, 1}),
        with("GDGetPalette", GDGetPalette, {0, 1}),
        own("GDCreateVram",
            [](Panel& panel) {
                GVram descriptor{};
                descriptor.width = panel.number<int16_t>(7);
                descriptor.height = panel.number<int16_t>(6);
                descriptor.bitsPerPixel = panel.number<int16_t>(8);
                descriptor.colorType = panel.number<int8_t>(G_COLOR_PALETTE);
                std::array<uint32_t, 4> colors = {0x102030, 0x405060, 0x708090, 0xA0B0C0};
                descriptor.palette = colors.data();
                descriptor.paletteCount = colors.size();
                panel.addSurface(GDCreateVram(&descriptor));
            }),
        own("GDCreateVVram",
            [](Panel& panel) {
                const auto width = panel.number<int16_t>(12);
                const auto height = panel.number<int16_t>(9);
                panel.addSurface(GDCreateVVram(width, height, panel.number<int16_t>(24)));
            }),
        own("GDDeleteVram", [](Panel& panel) { panel.deleteSurface(); }),
        with("GDGetVram", GDGetVram),
        onHandle(
            "GDSetVram",
            [](Panel& panel) { panel.attachSurface(panel.number<int16_t>(G_MEMORY_SURFACE)); }),
        with("GDSetColorMode", GDSetColorMode, {1, 0xF800, 0x07E0, 0x001F}),
        with("GDChangeVirtualVram", GDChangeVirtualVram, {0, 0}),
        with("GDSetLocalMode", GDSetLocalMode),
        with("GDSetVirtualMode", GDSetVirtualMode),
        with("GDSetVirtualRect", GDSetVirtualRect),
        with("GDSetLocalOrigin", GDSetLocalOrigin),
        with("GDGetLocalOrigin", GDGetLocalOrigin),
        with("GDOffsetLocalOrigin", GDOffsetLocalOrigin),
        with("GDSetClipRect", GDSetClipRect),
        with("GDGetClipRect", GDGetClipRect),
        with("GDInceptClipRect", GDInceptClipRect),
        with("GDPushClipRect", GDPushClipRect),
        with("GDPopClipRect", GDPopClipRect),
        with("GDInitBackupClipBuf", GDInitBackupClipBuf),
        with("GDSetDrawableRegion", GDSetDrawableRegion),
        with("GDRemoveDrawableRegion", GDRemoveDrawableRegion),
        with("GDSetZoomScale", GDSetZoomScale, {1, 1}),
        with("GDSetScrollPos", GDSetScrollPos, {0, 0}),
    };
}

} // namespace quarlo::test
