#!/bin/sh
# The first example draws the picture that the README shows, and is the program that it prints.
#
#     check_hello.sh HELLO SOURCE_FOLDER NEW_PICTURE
set -eu
QUARLO_DISPLAY=png QUARLO_FORMAT=24 QUARLO_WIDTH=320 QUARLO_HEIGHT=160 QUARLO_PNG="$3" "$1"
different=$(compare -metric AE "$2/docs/hello.png" "$3" null: 2>&1) || true
[ "$different" = 0 ] || {
    echo "FAILED: $3 differs from docs/hello.png in $different pixels" >&2
    exit 1
}
sed -n '/^```c$/,/^```$/p' "$2/README.md" | sed '1d;$d' | diff - "$2/examples/hello.c"
