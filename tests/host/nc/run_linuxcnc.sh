#!/bin/sh
# Runs LinuxCNC in simulation, without a display, until a file "stop" appears in the folder or the
# program that asked for it is gone.
#
#     run_linuxcnc.sh FOLDER
#
# LinuxCNC refuses to run as root, and one of its servers listens on all addresses: it gets a user
# that may do nothing and a network of its own. It speaks to its clients through shared memory,
# which does not mind.
set -eu
folder=$1
samples=/usr/share/doc/linuxcnc/examples/sample-configs/sim/axis
mkdir -p "$folder/home" "$folder/configuration"
rm -f "$folder/stop"

# In place of a display comes a script that waits; the rest of what it takes away wants a screen.
grep -v -E '^(INTRO_|HALUI|HALFILE = axis_manual|PROGRAM_EXTENSION|png|gif|jpg|py) *' \
    "$samples/axis_mm.ini" |
    sed -e "s|^DISPLAY = .*|DISPLAY = $folder/configuration/display|" \
        -e "s|^PROGRAM_PREFIX = .*|PROGRAM_PREFIX = $folder|" >"$folder/configuration/machine.ini"
cp "$samples/sim_mm.tbl" "$folder/configuration/"
cat >"$folder/configuration/display" <<EOF
#!/bin/sh
while [ ! -e "$folder/stop" ] && [ -e /proc/$PPID ]; do sleep 0.05; done
EOF
chmod +x "$folder/configuration/display"

export HOME="$folder/home" USER=nobody
unset DISPLAY
start='ip link set lo up; exec "$@"'
if [ "$(id -u)" = 0 ]; then
    chown -R 65534:65534 "$folder"
    exec unshare -n sh -c "$start" sh setpriv --reuid=65534 --regid=65534 --clear-groups \
        linuxcnc -r "$folder/configuration/machine.ini"
fi
exec unshare --user --map-current-user --keep-caps -n sh -c "$start" sh \
    linuxcnc -r "$folder/configuration/machine.ini"
