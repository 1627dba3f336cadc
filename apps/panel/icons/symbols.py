"""The symbols: a function for each icon, which is called like it."""

import math

from pen import BLUE, GOLD, GREEN, GREY, INK, LIGHT, RED, WHITE


def turning_arrow(pen, fill, x, y, radius, start, end):
    """An arrow along a circle, clockwise, in an outline. Its head leaves the circle straight on."""
    half, head, length = 2.5, 5, 7
    neck = math.radians(end)

    def on(distance, ahead=0):
        return (x + distance * math.cos(neck) - ahead * math.sin(neck),
                y + distance * math.sin(neck) + ahead * math.cos(neck))

    context = pen.context
    context.new_path()
    context.arc(x, y, radius + half, math.radians(start), neck)
    for point in (on(radius + head), on(radius, length), on(radius - head)):
        context.line_to(*point)
    context.arc_negative(x, y, radius - half, neck, math.radians(start))
    context.close_path()
    pen.finish(fill)


def block_arrow(pen, fill):
    pen.shape(fill, (3, 10), (16, 10), (16, 3), (29, 16), (16, 29), (16, 22), (3, 22))


def home(pen):
    pen.box(RED, 21, 5, 25, 14)
    pen.shape(WHITE, (7, 15), (16, 7), (25, 15), (25, 28), (7, 28))
    pen.line((3, 16), (16, 4), (29, 16), width=3)
    pen.shape(BLUE, (13, 28), (13, 19), (19, 19), (19, 28))


def cycle_start(pen):
    pen.disc(GREEN, 16, 16, 13)
    pen.area(WHITE, (12, 9), (24, 16), (12, 23))


def feed_hold(pen):
    pen.disc(GOLD, 16, 16, 13)
    pen.area(WHITE, (10, 9), (14, 9), (14, 23), (10, 23))
    pen.area(WHITE, (18, 9), (22, 9), (22, 23), (18, 23))


def reset(pen):
    turning_arrow(pen, BLUE, 17, 16, 10, -100, 180)


def single_block(pen):
    pen.box(GOLD, 3, 10, 12, 22)
    pen.line((12, 16), (19, 16))
    pen.shape(INK, (19, 12), (24, 16), (19, 20))
    pen.box(RED, 26, 6, 29, 26)


def jog_plus(pen):
    block_arrow(pen, BLUE)
    pen.area(WHITE, (8, 15), (12, 15), (12, 11), (14, 11), (14, 15), (18, 15), (18, 17), (14, 17),
             (14, 21), (12, 21), (12, 17), (8, 17))


def jog_minus(pen):
    pen.mirror()
    block_arrow(pen, BLUE)
    pen.area(WHITE, (8, 15), (18, 15), (18, 17), (8, 17))


def spindle_cw(pen):
    turning_arrow(pen, GREEN, 15, 17, 10, -215, 0)
    pen.disc(GREY, 15, 17, 3)


def spindle_ccw(pen):
    pen.mirror()
    spindle_cw(pen)


def spindle_stop(pen):
    pen.arc(INK, 16, 16, 10, 0, 360, width=6)
    pen.arc(LIGHT, 16, 16, 10, 0, 360, width=2)
    pen.box(RED, 12, 12, 20, 20)


def drop(pen, fill, x, top, radius, height):
    """A drop that hangs from (x, top)."""
    context = pen.context
    middle = top + height - radius
    context.new_path()
    context.move_to(x, top)
    context.curve_to(x + radius * 0.4, top + height * 0.3, x + radius, middle - radius * 0.7,
                     x + radius, middle)
    context.arc(x, middle, radius, 0, math.pi)
    context.curve_to(x - radius, middle - radius * 0.7, x - radius * 0.4, top + height * 0.3, x,
                     top)
    context.close_path()
    pen.finish(fill)


def coolant(pen):
    drop(pen, BLUE, 12, 4, 8, 24)
    drop(pen, BLUE, 25, 14, 4, 12)
    pen.arc(WHITE, 12, 20, 4, 90, 180)


def tool(pen):
    pen.shape(GREY, (9, 3), (23, 3), (21, 9), (11, 9))
    pen.box(LIGHT, 12, 9, 20, 15)
    pen.shape(GOLD, (12, 15), (20, 15), (20, 26), (16, 29), (12, 26))
    pen.line((12, 22), (20, 17))
    pen.line((13, 27), (20, 22))


def offsets(pen):
    pen.line((20, 24), (20, 12), (8, 12), rgb=BLUE)
    pen.line((8, 28), (8, 5))
    pen.line((4, 24), (27, 24))
    pen.shape(INK, (6, 6), (8, 3), (10, 6))
    pen.shape(INK, (26, 22), (29, 24), (26, 26))
    pen.disc(GOLD, 20, 12, 4)


def alarm(pen):
    pen.shape(GOLD, (16, 4), (29, 27), (3, 27))
    pen.line((16, 12), (16, 18), width=3)
    pen.dot(INK, 16, 23, 1.8)


def program(pen):
    pen.shape(WHITE, (6, 3), (19, 3), (26, 10), (26, 29), (6, 29))
    pen.shape(LIGHT, (19, 3), (19, 10), (26, 10))
    for row, (left, right) in enumerate(((10, 15), (10, 22), (10, 20), (10, 22))):
        pen.line((left, 11 + 4 * row), (right, 11 + 4 * row), rgb=BLUE)


def graphic(pen):
    pen.box(WHITE, 3, 4, 29, 28, radius=2)
    pen.line((8, 23), (8, 17), (13, 17), (13, 11), (17, 11), rgb=BLUE)
    pen.arc(BLUE, 17, 17, 6, -90, 60)
    pen.dot(RED, 20, 22, 2.5)


def settings(pen):
    context = pen.context
    context.new_path()
    teeth = 8
    for tooth in range(teeth):
        for angle, radius in ((-13, 9), (-8, 13), (8, 13), (13, 9)):
            turned = math.radians(tooth * 360 / teeth + angle)
            context.line_to(16 + radius * math.cos(turned), 16 + radius * math.sin(turned))
    context.close_path()
    pen.finish(GREY)
    pen.disc(WHITE, 16, 16, 4)


def language(pen):
    context = pen.context
    pen.dot(BLUE, 16, 16, 13)
    pen.line((4, 16), (28, 16), rgb=WHITE)
    pen.line((16, 4), (16, 28), rgb=WHITE)
    context.save()
    context.translate(16, 16)
    context.scale(0.5, 1)
    context.new_path()
    context.arc(0, 0, 12, 0, 2 * math.pi)
    context.restore()
    pen.stroke(WHITE)
    pen.disc(None, 16, 16, 13)


def emergency_stop(pen):
    pen.disc(GOLD, 16, 16, 13)
    pen.disc(RED, 16, 16, 8)
    pen.arc(WHITE, 16, 16, 4.5, 180, 270)


def help_(pen):
    pen.disc(BLUE, 16, 16, 13)
    context = pen.context
    context.new_path()
    context.arc(16, 12.5, 4, math.radians(-180), math.radians(40))
    context.curve_to(17.5, 16.5, 16, 16.5, 16, 19)
    pen.stroke(WHITE, 3)
    pen.dot(WHITE, 16, 23.5, 1.8)


def handwheel(pen):
    pen.disc(LIGHT, 16, 16, 13)
    for tick in range(12):
        turned = math.radians(30 * tick)
        inner, outer = 10, 11.5
        pen.line(*((16 + r * math.cos(turned), 16 + r * math.sin(turned)) for r in (inner, outer)),
                 width=1.5)
    pen.disc(GREY, 16, 16, 7)
    pen.disc(GOLD, 19, 13, 2.5)


def rapid(pen):
    pen.shape(GOLD, (4, 6), (16, 16), (4, 26))
    pen.shape(GOLD, (16, 6), (28, 16), (16, 26))


def edit(pen):
    pen.shape(RED, (22, 4), (28, 10), (25, 13), (19, 7))
    pen.shape(GOLD, (19, 7), (25, 13), (12, 26), (6, 20))
    pen.shape(WHITE, (6, 20), (12, 26), (4, 28))
    pen.area(INK, (4, 28), (5, 25), (7, 27))


def lock(pen):
    pen.line((10, 15), (10, 10), width=3)
    pen.line((22, 15), (22, 10), width=3)
    pen.arc(INK, 16, 10, 6, 180, 360, width=3)
    pen.box(GOLD, 6, 15, 26, 28, radius=2)
    pen.dot(INK, 16, 20, 2.2)
    pen.line((16, 21), (16, 24))


def cube(pen, top, front, side):
    pen.shape(top, (16, 3), (28, 9), (16, 15), (4, 9))
    pen.shape(front, (4, 9), (16, 15), (16, 29), (4, 23))
    pen.shape(side, (16, 15), (28, 9), (28, 23), (16, 29))


def plan(pen):
    cube(pen, BLUE, WHITE, WHITE)


def elevation(pen):
    cube(pen, WHITE, BLUE, WHITE)


def isometric(pen):
    cube(pen, LIGHT, BLUE, GREY)


def lens(pen):
    pen.line((19, 19), (27, 27), width=5)
    pen.disc(WHITE, 13, 13, 9)


def zoom_in(pen):
    lens(pen)
    pen.line((9, 13), (17, 13), rgb=BLUE)
    pen.line((13, 9), (13, 17), rgb=BLUE)


def zoom_out(pen):
    lens(pen)
    pen.line((9, 13), (17, 13), rgb=BLUE)


def zoom_fit(pen):
    for x, y in ((1, 1), (-1, 1), (-1, -1), (1, -1)):
        pen.line((16 - 12 * x, 16 - 6 * y), (16 - 12 * x, 16 - 12 * y), (16 - 6 * x, 16 - 12 * y))
    pen.box(BLUE, 10, 11, 22, 21)


def clear(pen):
    pen.shape(WHITE, (4, 20), (10, 14), (19, 23), (15, 27), (11, 27))
    pen.shape(BLUE, (10, 14), (20, 4), (29, 13), (19, 23))
    pen.line((15, 27), (27, 27))


def block_skip(pen):
    pen.box(GOLD, 11, 17, 21, 27)
    pen.line((14, 25), (18, 19))
    pen.arc(INK, 16, 16, 11, 180, 345)
    pen.shape(INK, (24, 14), (29, 14), (26.5, 18))


def optional_stop(pen):
    pen.shape(RED, (11, 3), (21, 3), (29, 11), (29, 21), (21, 29), (11, 29), (3, 21), (3, 11))
    pen.line((13, 12), (17, 9), (17, 23), rgb=WHITE, width=3)


def dry_run(pen):
    drop(pen, BLUE, 16, 3, 9, 26)
    pen.line((5, 27), (27, 5), width=6)
    pen.line((5, 27), (27, 5), rgb=RED, width=3)


def service(pen):
    pen.shape(GREY, (24, 3), (18, 4), (15, 10), (17, 14), (4, 25), (8, 29), (19, 17), (23, 18),
              (28, 15), (29, 9), (24, 12), (20, 8))


def history(pen):
    pen.disc(WHITE, 16, 16, 13)
    pen.line((16, 8), (16, 16), (22, 19), rgb=BLUE)


def screens(pen):
    for left, top, fill in ((4, 4, BLUE), (18, 4, WHITE), (4, 18, WHITE), (18, 18, WHITE)):
        pen.box(fill, left, top, left + 10, top + 10)


ICONS = (home, cycle_start, feed_hold, reset, single_block, jog_plus, jog_minus, rapid, handwheel,
         spindle_cw, spindle_ccw, spindle_stop, coolant, tool, offsets, alarm, program, graphic,
         edit, settings, language, lock, emergency_stop, help_, plan, elevation, isometric, zoom_in,
         zoom_out, zoom_fit, clear, block_skip, optional_stop, dry_run, service, history,
         screens)
