#!/bin/sh
# Runs in the fresh Debian of scripts/test-packages and uses the installed packages as people do. Each
# program draws and reads back, so that a wrong library is noticed.
set -eu
cd /package
export QUARLO_DISPLAY=memory HOME=/package

echo "-- C and C++, by pkg-config"
# shellcheck disable=SC2046
cc -std=c11 -Wall -Wextra -Werror consumer/draw.c -o draw_c $(pkg-config --cflags --libs quarlo gpi)
# shellcheck disable=SC2046
c++ -std=c++17 -Wall -Wextra -Werror consumer/draw.cpp -o draw_cpp \
    $(pkg-config --cflags --libs quarlo gpi)
./draw_c
./draw_cpp

echo "-- C and C++, by CMake"
cmake -S consumer -B built -G Ninja >/dev/null
cmake --build built -- --quiet
built/draw_c
built/draw_cpp
built/images

echo "-- Python"
python3 -c '
import quarlo
with quarlo.Display() as display:
    display.fill(display.area, 0xFFFFFF)
    assert quarlo.raw.GDGetPixel(display.handle, 0, 0) == display.pixel_value(0xFFFFFF)
'

echo "-- quarlo-grf"
quarlo-grf encode --quiet --surface 24 consumer/dot.png dot.grf
quarlo-grf check dot.grf
quarlo-grf decode dot.grf dot.png
quarlo-grf encode --quiet --surface 24 dot.png again.grf
cmp dot.grf again.grf

echo "-- quarlo-doctor"
quarlo-doctor >doctor.txt || { cat doctor.txt; exit 1; }

echo "-- hello"
# shellcheck disable=SC2046
cc hello.c -o hello $(pkg-config --cflags --libs quarlo gpi)
QUARLO_DISPLAY=png QUARLO_PNG=hello.png QUARLO_WIDTH=320 QUARLO_HEIGHT=160 QUARLO_FORMAT=24 ./hello
test -s hello.png

echo "-- panel"
mkdir shots
QUARLO_FILES=programs QUARLO_PROFILES=profiles ./panel --script scripts/tour.txt --shots shots \
    lens_mould.nc
test -s shots/graphic.png
