# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT

# What `cmake --install` puts where of core/, with or without the rest of the project: the library, its headers, the
# CMake package and a file for pkg-config. All of it belongs to the component `ornevo-dev`.

include(CMakePackageConfigHelpers)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/Ornevo)

install(TARGETS ornevo_core
    EXPORT OrnevoCoreTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ornevo-dev
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ornevo-dev
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ornevo-dev
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ornevo COMPONENT ornevo-dev)
install(EXPORT OrnevoCoreTargets NAMESPACE Ornevo:: DESTINATION ${package} COMPONENT ornevo-dev)

set(ORNEVO_QT_VERSION 6.4)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/OrnevoConfig.cmake.in
    ${PROJECT_BINARY_DIR}/OrnevoConfig.cmake INSTALL_DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/OrnevoConfigVersion.cmake
    VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/OrnevoConfig.cmake ${PROJECT_BINARY_DIR}/OrnevoConfigVersion.cmake
    DESTINATION ${package} COMPONENT ornevo-dev)

# Who links the static library links what it is made of, too.
if(BUILD_SHARED_LIBS)
    set(ORNEVO_PC_REQUIRES Requires.private)
    set(ORNEVO_PC_DEFINITIONS "")
else()
    set(ORNEVO_PC_REQUIRES Requires)
    set(ORNEVO_PC_DEFINITIONS " -DORNEVO_CORE_STATIC")
endif()
# The file finds its folders from where it stands itself, so that an installation can be moved.
file(RELATIVE_PATH ORNEVO_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${PROJECT_SOURCE_DIR}/cmake/ornevo-core.pc.in ${PROJECT_BINARY_DIR}/ornevo-core.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ornevo-core.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT ornevo-dev)
