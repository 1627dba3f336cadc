# Sourced by the other scripts: a Debian for another processor, in a folder of its own.

# make_root FOLDER ARCHITECTURE VARIANT PACKAGE,...: of the release and from the mirror that this
# machine has.
make_root() {
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' \
        "Codename: $release" 'Component: main' | head -n 1)
    rm -rf "$1"
    mmdebstrap --quiet --architectures="$2" --variant="$3" --skip=check/qemu \
        --include="$4" "$release" "$1" \
        "deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror $release main"
}
