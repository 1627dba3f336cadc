#!/bin/sh
# The first example draws the picture that the README shows, and is the program that it prints.
#
#     check_hello.sh RUN HELLO SOURCE_FOLDER NEW_PICTURE
set -eu
QUARLO_DISPLAY=png QUARLO_FORMAT=24 QUARLO_WIDTH=320 QUARLO_HEIGHT=160 QUARLO_PNG="$4" "$1" "$2"
different=$(compare -metric AE "$3/docs/hello.png" "$4" null: 2>&1) || true
[ "$different" = 0 ] || {
    echo "FAILED: $4 differs from docs/hello.png in $different pixels" >&2
    exit 1
}
sed -n '/^```c$/,/^```$/p' "$3/README.md" | sed '1d;$d' | diff - "$3/examples/hello.c"
