/* What the panel shows and how it is drawn: the programs so far, as a part of those to come. */
#pragma once

#include <quarlo/quarlo.h>

enum { WIDTH = 480, HEIGHT = 272 };
enum { AXES = 3 };
enum { START, HOLD, STEP, RESET, KEYS, NO_KEY = -1 };
enum { OFF, READY, RUNNING, HELD, ALARM, STATES };

typedef struct Picture {
    int state; /* OFF to ALARM */
    double axes[AXES];
    int percent;   /* of the feed, 0 to 200 */
    uint32_t time; /* of day, in seconds; 0 shows no clock */
    int pressed;   /* the key that is held down, or NO_KEY */
} Picture;

/* Where things are. */
extern const GRect wholeArea;
extern const GRect barArea;
extern const GRect clockArea;
extern const GRect gaugeArea;
GRect readoutArea(int axis);
GRect keyArea(int key);

/* Starts the platform, opens its display and loads the fonts; null when that cannot be. */
GDrawHandle* openPanel(void);

/* Gives all of it back. 1, or 0 when the platform did not end well. */
int closePanel(GDrawHandle* handle);

/* Draws everything; pixels outside the clip rectangle stay as they are. */
void drawPicture(GDrawHandle* handle, const Picture* picture);
