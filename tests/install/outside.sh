# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT

# Sourced by `run` and `core`, with their arguments: what a program of someone else's sees of an installation.
#
#   CMAKE GENERATOR MAKE SOURCE BUILD COMPILER FLAGS
cmake=$1 generator=$2 make=$3 source=$4 build=$5 compiler=$6 flags=$7
# What BUILD was made with is there; CMake's own choice, for instance make, need not be.
same=(-G "$generator" -DCMAKE_MAKE_PROGRAM="$make" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags")
work=$build/install-test
prefix=$work/prefix

core_headers='core/EdgeDetectors.h
core/EdgeMap.h
core/Export.h
core/Feathering.h
core/GaussianBlur.h
core/Progress.h
core/Version.h
core/Views.h
core/Watershed.h
core/WaveSegmentation.h'

fail() { echo "FAIL: $*" >&2; exit 1; }

# Installs into a fresh prefix and moves that elsewhere: a package has no say in where it ends.
install_elsewhere() {
    rm -rf "$work"
    "$cmake" --install "$build" --prefix "$work/first" > "$work.log" 2>&1 || { cat "$work.log" >&2; fail "installing"; }
    mv "$work/first" "$prefix"
    # At the start of a path only: a folder of the installed files may end like the checkout's.
    if grep -rIlE -e "(^|[\"' ;=:])($source/|$work/first)" "$prefix"; then
        fail "the files above name folders of this checkout"
    fi
}

# installed_headers_are HEADERS: the public ones are there and the internal ones are not.
installed_headers_are() {
    local installed
    installed=$(cd "$prefix/include/ornevo" && find . -type f | sed 's,^\./,,' | LC_ALL=C sort)
    [ "$installed" = "$1" ] || fail "the installed headers are not the public ones: $installed"
}

# A program of this one's own, with every public header in it, each included alone once, as the oldest C++ that it says
# it compiles with.
#   headers_compile NAME STANDARD HEADERS TARGETS FIND-ARGUMENTS CMAKE-OPTIONS..
headers_compile() {
    local name=$1 standard=$2 headers=$3 targets=$4 find=$5 header
    shift 5
    mkdir -p "$work/$name"
    {
        echo 'cmake_minimum_required(VERSION 3.25)'
        echo 'project(Headers LANGUAGES CXX)'
        echo "set(CMAKE_CXX_STANDARD $standard)"
        echo "find_package(Ornevo 2.7 REQUIRED $find)"
        echo 'file(GLOB sources *.cpp)'
        echo 'add_executable(headers ${sources})'
        echo "target_link_libraries(headers PRIVATE $targets)"
        # Said twice, so that a target asking for more shows.
        echo "target_compile_options(headers PRIVATE -std=c++$standard)"
    } > "$work/$name/CMakeLists.txt"
    while read -r header; do
        echo "#include \"$header\"" > "$work/$name/${header//\//_}.cpp"
    done <<< "$headers"
    echo '#include "core/Version.h"
int main() { return ornevo::version()[0] == 0; }' > "$work/$name/main.cpp"
    "$cmake" -S "$work/$name" -B "$work/$name/build" "${same[@]}" -DCMAKE_PREFIX_PATH="$prefix" "$@"
    "$cmake" --build "$work/$name/build"
    "$work/$name/build/headers"
}

# The core as on a machine without Qt: by find_package(), and by pkg-config.
core_is_found() {
    local pc arguments
    headers_compile core 17 "$core_headers" Ornevo::core 'COMPONENTS core' -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
    pc=$(dirname "$(find "$prefix" -name ornevo-core.pc)")
    read -ra arguments <<< "$(PKG_CONFIG_PATH=$pc pkg-config --cflags --libs ornevo-core)"
    # shellcheck disable=SC2086 # the flags are several words
    "$compiler" $flags -std=c++17 "$work/core/main.cpp" "${arguments[@]}" -o "$work/by-pkg-config"
    "$work/by-pkg-config"
}

# Nothing of ours stands in the global namespace but what is promised there.
no_stray_names() {
    local promised='cvSobel|Fr[A-Z][A-Za-z0-9]*|IsBlack|is_white_mw|OvDoFeathering' strays
    strays=$(find "$prefix" -name 'libornevo_*.a' -exec nm -C --defined-only -g {} + 2>/dev/null | grep -E ' [TDBR] ' |
        sed -E 's/^[0-9a-f]+ [TDBR] //' | grep -vE "^(ornevo|imaging|segmentation)::|^($promised)\(|^(typeinfo|vtable)|^non-virtual" || true)
    [ -z "$strays" ] || fail "these names stand in the global namespace: $strays"
}
