# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
#
# Sourced by the scripts: what they need from Debian, and how it gets there.

build_packages=(g++ cmake ninja-build ccache pkg-config python3 qt6-base-dev qt6-tools-dev qt6-tools-dev-tools
    qt6-l10n-tools libgl-dev libhwy-dev libgtest-dev
    python3-dev pybind11-dev python3-numpy python3-pil python3-pytest python3-mypy mypy)
# For core/ and its tests alone, which need no Qt.
core_packages=(g++ cmake ninja-build ccache libhwy-dev libgtest-dev)
# qt6-image-formats-plugins reads TIFF; qt6-translations-l10n has Qt's own dialogs in other languages; the fonts are for
# machines that have none yet.
run_packages=(qt6-image-formats-plugins qt6-translations-l10n fontconfig fonts-dejavu-core)
headless_packages=(xvfb xauth)
check_packages=(clang libclang-rt-dev clang-format clang-tidy git)
debian_packages=(debhelper dpkg-dev git dh-python)
# For scripts/check-package.
package_packages=(man-db lintian desktop-file-utils appstream mmdebstrap xvfb x11-utils)

say() { printf '== %s\n' "$*"; }

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Installs those of the named packages that are missing; asks for root only when there are any.
need_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} = 0 ] && return 0
    say "installing from Debian: ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# Configures and builds a preset of CMakePresets.json.
build_preset() {
    say "configuring and building: $1"
    cmake --preset "$1"
    cmake --build --preset "$1"
}

# Names, each followed by a zero byte, of all source files: with what was not committed yet, without what was built.
source_files() {
    local file
    git ls-files -z --cached --others --exclude-standard | while IFS= read -r -d '' file; do
        [ ! -e "$file" ] || printf '%s\0' "$file"
    done
}
