/*
 * A screen of the machine builder's own, in a module that the panel loads when it is there.
 *
 * The module is called "builder" and lies in the platform's folder of modules. It exports
 *
 *     const PanelScreen* panelScreen(void);
 *
 * and calls the same functions of the library as the panel does, in the same thread.
 */
#pragma once

#include <quarlo/quarlo.h>

QUARLO_BEGIN

enum { PANEL_SCREEN_VERSION = 1 };

/** The panel's colours, as the display takes them. */
typedef struct PanelInks {
    uint32_t ground; /**< of the screen, which is drawn */
    uint32_t card;   /**< of what stands on it */
    uint32_t edge;   /**< around that */
    uint32_t text;
    uint32_t faint; /**< less important text */
    uint32_t good;
    uint32_t caution;
} PanelInks;

typedef struct PanelScreen {
    int32_t version; /**< #PANEL_SCREEN_VERSION */

    /**
     * Draws the screen. The size and dash of the pen stay as they are.
     *
     * @param handle the display, its clip rectangle what has to be drawn, its font the panel's
     * @param area the screen's place
     */
    void (*draw)(GDrawHandle* handle, const GRect* area, const PanelInks* inks);

    /** Whether it would look different now. Asked while it is in view, with every event. */
    int32_t (*changed)(void);

    /** A key goes down (gpi/keys.h). @return 1 when the screen has used it */
    int32_t (*key)(int32_t key);
} PanelScreen;

/** The type of panelScreen(). */
typedef const PanelScreen* (*PanelScreenFunction)(void);

QUARLO_END
