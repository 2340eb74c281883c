# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
# Read by scripts/mutate's builds after project(). The product's libraries are shared ones here: of a mutant one source is
# compiled and one library linked, and the test programs stay as they are, for the coverage as well.
set(ornevo_products ornevo_app ornevo_canvas ornevo_core ornevo_cutout ornevo_imaging ornevo_segmentation)

# Called instead of CMake's own, which is still there under the name with an underscore.
function(add_library name)
    set(arguments ${ARGN})
    if(name IN_LIST ornevo_products)
        list(REMOVE_ITEM arguments STATIC)
        list(PREPEND arguments SHARED)
    endif()
    _add_library(${name} ${arguments})
endfunction()

function(ornevo_flags_of_product)
    foreach(target IN LISTS ornevo_products ITEMS ornevo ornevo_core_objects)
        set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET default VISIBILITY_INLINES_HIDDEN OFF)
        set_property(TARGET ${target} PROPERTY VERSION)
        set_property(TARGET ${target} PROPERTY SOVERSION)
        # No program replaces a function of a library: inside of it they may be inlined.
        target_compile_options(${target} PRIVATE -fno-semantic-interposition)
        if(ORNEVO_MUTATION_COVERAGE)
            target_compile_options(${target} PRIVATE --coverage -fno-inline-functions-called-once
                -fprofile-filter-files=^${PROJECT_SOURCE_DIR}/[a-z]+/.*)
        endif()
    endforeach()
    foreach(target ornevo_plain_reference ornevo_reference ornevo_fuzz_reference)
        target_compile_options(${target} PRIVATE -O3)
    endforeach()
endfunction()
if(ORNEVO_MUTATION_COVERAGE)
    string(APPEND CMAKE_EXE_LINKER_FLAGS " --coverage")
    string(APPEND CMAKE_SHARED_LINKER_FLAGS " --coverage")
endif()
# All is compiled quickly, the product once a mutant; but for the references, which take the longest to run.
string(REPLACE "-O3" "-O1" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")
cmake_language(DEFER DIRECTORY ${CMAKE_SOURCE_DIR} CALL ornevo_flags_of_product)
