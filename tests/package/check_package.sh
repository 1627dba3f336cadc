#!/bin/sh
# Installs a build tree into a fresh folder and builds the consumer programs against that, each way
# that users have. Every program draws and reads back, so that a wrong library is noticed too.
set -eu

cmake=$1 build=$2 work=$3
CC=$4 CXX=$5
export CC CXX
source=$(cd "$(dirname "$0")" && pwd)/consumer
prefix=$work/prefix
rm -rf "$prefix" "$work/consumer"
mkdir -p "$work/consumer"

"$cmake" --install "$build" --prefix "$prefix" >"$work/install.log"

export QUARLO_DISPLAY=memory

# By the CMake package.
"$cmake" -S "$source" -B "$work/consumer/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" \
    >"$work/configure.log"
"$cmake" --build "$work/consumer/cmake" >"$work/build.log"
"$work/consumer/cmake/draw_c"
"$work/consumer/cmake/draw_cpp"
"$work/consumer/cmake/images"

# The tool finds the platform that was installed with it, and nothing wrong.
"$prefix/bin/quarlo-doctor" >"$work/doctor.log"

# By pkg-config.
PKG_CONFIG_PATH=$(dirname "$(find "$prefix" -name quarlo.pc)")
export PKG_CONFIG_PATH
LD_LIBRARY_PATH=$(pkg-config --variable=libdir quarlo)
export LD_LIBRARY_PATH
flags=$(pkg-config --cflags --libs quarlo gpi)
# The flags are words of their own.
# shellcheck disable=SC2086
{
    "$CC" -std=c11 -Wall -Wextra -Werror "$source/draw.c" -o "$work/consumer/draw_c" $flags
    "$CXX" -std=c++17 -Wall -Wextra -Werror "$source/draw.cpp" -o "$work/consumer/draw_cpp" $flags
}
"$work/consumer/draw_c"
"$work/consumer/draw_cpp"

# The module finds the libraries that were installed with it.
env -u LD_LIBRARY_PATH PYTHONPATH="$prefix/lib/python3/dist-packages" python3 -c '
import quarlo
with quarlo.Display() as display:
    display.fill(display.area, 0xFFFFFF)
    assert quarlo.raw.GDGetPixel(display.handle, 0, 0) == display.pixel_value(0xFFFFFF)
'

# The way to LinuxCNC finds its modules.
python3 "$(dirname "$0")/../host/nc/linuxcnc/program_test.py" "$prefix/libexec/quarlo" \
    2>"$work/linuxcnc.log"

# The manual.
groff -man -Tascii "$prefix/share/man/man3/GDLineTo.3" >"$work/page.txt"
grep -q 'void GDLineTo(GDrawHandle\* handle, int16_t x, int16_t y);' "$work/page.txt"
for program in "$prefix"/bin/*; do
    test -s "$prefix/share/man/man1/$(basename "$program").1"
done
