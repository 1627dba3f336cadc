# Sourced by the other scripts: a Debian in a folder of its own, for this or another processor.

# make_root FOLDER ARCHITECTURE VARIANT PACKAGE,... [OPTION...]: of the release and from the mirror
# that this machine has. Options are mmdebstrap's.
make_root() {
    folder=$1
    architecture=$2
    variant=$3
    packages=$4
    shift 4
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    mirror=$(apt-get indextargets --format '$(SITE)' 'Created-By: Packages' \
        "Codename: $release" 'Component: main' | head -n 1)
    rm -rf "$folder"
    mmdebstrap --quiet --architectures="$architecture" --variant="$variant" --skip=check/qemu \
        --include="$packages" "$@" "$release" "$folder" \
        "deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror $release main"
}
