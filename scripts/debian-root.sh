# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
#
# Sourced by scripts: a Debian of any release in a folder, and how to run something there. Needs root. Downloaded
# packages and compiled objects are kept between runs, in $ORNEVO_CACHE; all of it may be deleted at any time. One run at a
# time: apt locks its folder of packages.

ORNEVO_CACHE=${ORNEVO_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/ornevo}
ORNEVO_CCACHE=${CCACHE_DIR:-$ORNEVO_CACHE/ccache}

# suite_of 12 | 13: the name of a release.
suite_of() {
    case "$1" in
        12) echo bookworm ;;
        13) echo trixie ;;
        *) echo "Debian 12 and 13 are supported, not $1" >&2; return 2 ;;
    esac
}

# make_root SUITE FOLDER: a bare Debian; besides what is essential it has git and the certificates that it needs.
make_root() {
    local suite=$1 root=$2 keep=$ORNEVO_CACHE/$1.tar
    mkdir -p "$ORNEVO_CACHE"
    as_root rm -rf "$root"
    as_root mkdir -p "$root"
    # A root of last week installs most of its packages twice.
    if [ -z "$(find "$keep" -mtime -7 2> /dev/null)" ]; then
        as_root mmdebstrap --quiet --variant=minbase --include=git,ca-certificates "$suite" "${keep%.tar}-new.tar"
        as_root mv "${keep%.tar}-new.tar" "$keep"
    fi
    as_root tar -C "$root" -xf "$keep"
    as_root cp -L /etc/resolv.conf "$root/etc/resolv.conf"
    echo 'Binary::apt-get::APT::Keep-Downloaded-Packages "true"; APT::Keep-Downloaded-Packages "true"; APT::Sandbox::User "root";' |
        as_root tee "$root/etc/apt/apt.conf.d/keep-packages" > /dev/null
}

# in_root SUITE FOLDER COMMAND ...: as root of that Debian, with processes and mounts of its own, which end with the
# command. Of the environment it gets ORNEVO_WERROR and ccache's settings.
in_root() {
    local suite=$1 root=$2 name handed=()
    shift 2
    mkdir -p "$ORNEVO_CACHE/apt-$suite/partial" "$ORNEVO_CCACHE"
    for name in ORNEVO_WERROR CCACHE_BASEDIR CCACHE_NOHASHDIR; do
        [ -z "${!name:-}" ] || handed+=("$name=${!name}")
    done
    # shellcheck disable=SC2016 # the inner shell's own parameters
    as_root unshare --mount --pid --fork --kill-child bash -euc '
        root=$1 packages=$2 objects=$3
        shift 3
        mount --make-rprivate /
        mkdir -p "$root/var/cache/apt/archives" "$root/var/cache/ccache"
        mount -t proc proc "$root/proc"
        mount --rbind /dev "$root/dev"
        mount --bind "$packages" "$root/var/cache/apt/archives"
        mount --bind "$objects" "$root/var/cache/ccache"
        exec chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 \
            DEBIAN_FRONTEND=noninteractive CCACHE_DIR=/var/cache/ccache "$@"' \
        in_root "$root" "$ORNEVO_CACHE/apt-$suite" "$ORNEVO_CCACHE" "${handed[@]}" "$@"
}

# copy_tree FOLDER: the sources as they are now go to the Debian in FOLDER, under the same path as here, so that ccache
# knows what was compiled here.
copy_tree() {
    as_root mkdir -p "$1$PWD"
    source_files | tar --null --files-from=- -cf - | as_root tar -C "$1$PWD" --no-same-owner -xf -
}
