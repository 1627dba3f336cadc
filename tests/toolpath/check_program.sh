#!/bin/sh
# What the program says and how it ends, for programs that can be drawn and for those that cannot.
#
#     check_program.sh RUN TOOLPATH SCRATCH_DIRECTORY
set -eu
run=$1
toolpath=$2
scratch=$3
export QUARLO_DISPLAY=png QUARLO_PNG="$scratch/picture.png"
mkdir -p "$scratch"

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# run STATUS ARGUMENTS...: expects an exit status; leaves what was said in out and err
run() {
    expected=$1
    shift
    rm -f "$QUARLO_PNG"
    status=0
    "$run" "$toolpath" "$@" >"$scratch/out" 2>"$scratch/err" </dev/null || status=$?
    [ "$status" = "$expected" ] || fail "status $status instead of $expected for: $*"
}

# refused ARGUMENTS...: expects status 2, one line of error, and nothing drawn
refused() {
    run 2 "$@"
    [ "$(wc -l <"$scratch/err")" = 1 ] || fail "not one line for: $*"
    [ ! -s "$scratch/out" ] || fail "output for: $*"
    [ ! -e "$QUARLO_PNG" ] || fail "a picture for: $*"
}

refused "$scratch/no such file.nc"
grep -q "no such file.nc cannot be read: No such file" "$scratch/err" || fail "no reason given"
refused "$scratch"
refused /dev/zero
refused ""
refused
refused one two

printf 'G21\nG1 X10 G41\nG41 X20\nM98 P1\nY5' >"$scratch/words.nc"
run 0 "$scratch/words.nc"
[ "$(grep -c '^line' "$scratch/err")" = 2 ] || fail "not each word once"
grep -qx 'line 2: G41 is not drawn' "$scratch/err" || fail "G41 not named"
grep -qx 'line 4: M98 is not drawn' "$scratch/err" || fail "M98 not named"
[ -s "$QUARLO_PNG" ] || fail "no picture"

: >"$scratch/empty.nc"
run 0 "$scratch/empty.nc"
[ -s "$QUARLO_PNG" ] || fail "no picture of an empty program"

head -c 1000000 /dev/urandom >"$scratch/noise.nc"
run 0 "$scratch/noise.nc"

QUARLO_PNG="$scratch/no such folder/picture.png"
run 1 "$scratch/words.nc"
[ ! -e "$QUARLO_PNG" ] || fail "a picture in no folder"
