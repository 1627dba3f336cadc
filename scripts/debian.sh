# Sourced by the other scripts: Debian's packages for other processors, and for folders of their own.

# The release and the mirror that this machine has.
debian_release() {
    (. /etc/os-release && echo "$VERSION_CODENAME")
}
debian_mirror() {
    # shellcheck disable=SC2016
    apt-get indextargets --format '$(SITE)' 'Created-By: Packages' \
        "Codename: $(debian_release)" 'Component: main' | head -n 1
}
debian_keys=/usr/share/keyrings/debian-archive-keyring.gpg

# make_root FOLDER ARCHITECTURE VARIANT PACKAGE,... [OPTION...]: a Debian in a folder. Options are
# mmdebstrap's.
make_root() {
    folder=$1
    architecture=$2
    variant=$3
    packages=$4
    shift 4
    rm -rf "$folder"
    mkdir -p "${folder%/*}"
    mmdebstrap --quiet --architectures="$architecture" --variant="$variant" --skip=check/qemu \
        --include="$packages" "$@" "$(debian_release)" "$folder" \
        "deb [signed-by=$debian_keys] $(debian_mirror) $(debian_release) main"
}
