# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
# Read by scripts/mutate's builds after project(). The product's sources are compiled once a mutant: quickly, then; for
# the coverage they are counted as well. The tests keep the flags of a release build, and so their objects in ccache.
function(ornevo_flags_of_product)
    set(products ornevo ornevo_app ornevo_canvas ornevo_cutout ornevo_imaging ornevo_segmentation
        ornevo_core ornevo_core_objects)
    foreach(target IN LISTS products)
        if(TARGET ${target})
            target_compile_options(${target} PRIVATE -O1)
            if(ORNEVO_MUTATION_COVERAGE)
                target_compile_options(${target} PRIVATE --coverage -fno-inline-functions-called-once)
            endif()
        endif()
    endforeach()
endfunction()
if(ORNEVO_MUTATION_COVERAGE)
    string(APPEND CMAKE_EXE_LINKER_FLAGS " --coverage")
endif()
cmake_language(DEFER DIRECTORY ${CMAKE_SOURCE_DIR} CALL ornevo_flags_of_product)
