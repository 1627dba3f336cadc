#!/bin/sh
# Draws a part program and compares the picture, pixel by pixel, with one that was looked at.
#
#     check_picture.sh RUN TOOLPATH PROGRAM FORMAT EXPECTED_PICTURE NEW_PICTURE
#
# After a change that is meant, look at the new picture and copy it over the expected one.
set -eu
export QUARLO_DISPLAY=png QUARLO_WIDTH=800 QUARLO_HEIGHT=600 QUARLO_FORMAT="$4" QUARLO_PNG="$6"
"$1" "$2" "$3"
different=$(compare -metric AE "$5" "$6" null: 2>&1) || true
[ "$different" = 0 ] || {
    echo "FAILED: $6 differs from $5 in $different pixels" >&2
    exit 1
}
