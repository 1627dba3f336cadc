# Sourced by the other scripts: installs Debian packages that are not there yet.

need_packages() {
    missing=
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            missing="$missing $package"
    done
    [ -n "$missing" ] || return 0
    echo "installing:$missing"
    as_root=
    [ "$(id -u)" = 0 ] || as_root=sudo
    $as_root apt-get update -qq
    # The names are words of their own. Servers among them, which tests start by themselves, do not
    # start now.
    # shellcheck disable=SC2016,SC2086
    $as_root sh -c '
        policy=/usr/sbin/policy-rc.d
        if [ ! -e $policy ]; then
            trap "rm -f $policy" EXIT
            printf "#!/bin/sh\nexit 101\n" >$policy
            chmod +x $policy
        fi
        DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "$@" >/dev/null
    ' sh $missing
}

# The libraries that the host platform stands on.
host_libraries="libsdl2-dev libpng-dev libsimpleini-dev libturbojpeg0-dev libfreetype-dev \
    libfontconfig-dev libcurl4-openssl-dev libvncserver-dev libdrm-dev libevdev-dev"

# What building the library and the host platform takes.
build_packages="g++ cmake ninja-build pkg-config $host_libraries \
    fonts-vlgothic fonts-wqy-zenhei fonts-dejavu-core"

# What building for browsers takes beside it.
web_packages="emscripten dpkg-dev patch xz-utils"
