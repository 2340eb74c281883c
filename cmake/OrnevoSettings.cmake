# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
#
# One place for what every target of the project is compiled with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

# Linked by every target of ours, and by nothing that is installed.
add_library(ornevo_settings INTERFACE)
# The results are promised to the bit: no compiler may fuse a multiplication and an addition. Microsoft's does not under
# /fp:precise unless asked to. That one has been tried by nobody; see docs/other-systems.md.
if(MSVC)
    target_compile_options(ornevo_settings INTERFACE
        /fp:precise /utf-8 /permissive- /Zc:__cplusplus /W4
        $<$<BOOL:${ORNEVO_WERROR}>:/WX>)
else()
    target_compile_options(ornevo_settings INTERFACE
        -ffp-contract=off
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
        $<$<BOOL:${ORNEVO_WERROR}>:-Werror>)
endif()
if(ORNEVO_SANITIZE)
    target_compile_options(ornevo_settings INTERFACE
        -fsanitize=${ORNEVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(ornevo_settings INTERFACE -fsanitize=${ORNEVO_SANITIZE})
    if(ORNEVO_SANITIZE MATCHES address) # the compilers have no word for it in common
        target_compile_definitions(ornevo_settings INTERFACE ORNEVO_ADDRESS_SANITIZER)
    endif()
endif()
if(ORNEVO_FUZZ)
    # Without the tracing of comparisons, which finds magic words in what is read and takes half of the time of what
    # computes: nothing of ours looks for such words, and the decoders that do are not compiled here.
    target_compile_options(ornevo_settings INTERFACE -fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp)
    target_link_options(ornevo_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

target_compile_definitions(ornevo_settings INTERFACE QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING)

# For what is made of Qt and belongs to the product: whoever makes a text of bytes says what they are, so that a file's
# name or a message is never taken for Latin-1, nor a missing encodeName() overlooked. Tests compare with literals in
# thousands of places, where a text that has gone wrong fails the test anyway: they do without.
add_library(ornevo_product_settings INTERFACE)
target_link_libraries(ornevo_product_settings INTERFACE ornevo_settings)
target_compile_definitions(ornevo_product_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_JAVA_STYLE_ITERATORS)
