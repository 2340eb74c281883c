# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
#
# What `cmake --install` puts where. Two components: `ornevo` is the program with all that a desktop wants to know of
# it; `ornevo-dev` the libraries with their headers, for find_package(Ornevo).


set(files ${PROJECT_SOURCE_DIR}/resources/install)
set(icons ${PROJECT_SOURCE_DIR}/resources/icons)

# The program.
install(TARGETS ornevo
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ornevo
    BUNDLE DESTINATION . COMPONENT ornevo)
# Where Qt is not a part of the system, it goes along.
if(APPLE OR WIN32)
    qt_generate_deploy_app_script(TARGET ornevo FILENAME_VARIABLE deploy_script NO_UNSUPPORTED_PLATFORM_ERROR)
    install(SCRIPT ${deploy_script} COMPONENT ornevo)
endif()

if(NOT APPLE AND NOT WIN32)
    install(FILES ${files}/ornevo.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT ornevo)
    install(FILES ${files}/ornevo.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo RENAME example.ornevo.ornevo.metainfo.xml COMPONENT ornevo)
    foreach(size 16 22 24 32 48 64 128 256)
        install(FILES ${icons}/app/ornevo-${size}.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME ornevo.png
            COMPONENT ornevo)
    endforeach()
    install(FILES ${icons}/svg/ornevo.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT ornevo)

    # Man pages are kept compressed; without the time of day in it, so that two builds give the same file.
    find_program(GZIP_PROGRAM gzip REQUIRED)
    function(ornevo_compress source target)
        add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/${target}
            COMMAND ${GZIP_PROGRAM} -9nc ${source} > ${PROJECT_BINARY_DIR}/${target}
            DEPENDS ${source} VERBATIM)
        set_property(GLOBAL APPEND PROPERTY ORNEVO_COMPRESSED ${PROJECT_BINARY_DIR}/${target})
    endfunction()
    ornevo_compress(${files}/ornevo.1 ornevo.1.gz)
    install(FILES ${PROJECT_BINARY_DIR}/ornevo.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ornevo)
    foreach(language de es fr it ja pl pt_BR zh_CN)
        ornevo_compress(${files}/ornevo.${language}.1 ornevo.${language}.1.gz)
        install(FILES ${PROJECT_BINARY_DIR}/ornevo.${language}.1.gz
            DESTINATION ${CMAKE_INSTALL_MANDIR}/${language}/man1 RENAME ornevo.1.gz COMPONENT ornevo)
    endforeach()
    get_property(compressed GLOBAL PROPERTY ORNEVO_COMPRESSED)
    add_custom_target(ornevo_documents ALL DEPENDS ${compressed})
endif()
install(FILES LICENSE README.md CHANGELOG.md
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/ornevo COMPONENT ornevo)

# The libraries.
include(cmake/OrnevoInstallCore.cmake)
set_target_properties(ornevo_imaging PROPERTIES EXPORT_NAME imaging)
set_target_properties(ornevo_segmentation PROPERTIES EXPORT_NAME segmentation)
install(TARGETS ornevo_imaging ornevo_segmentation
    EXPORT OrnevoTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ornevo-dev
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ornevo COMPONENT ornevo-dev)
install(EXPORT OrnevoTargets NAMESPACE Ornevo:: DESTINATION ${package} COMPONENT ornevo-dev)

# Inside of this project by the same names as outside.
add_library(Ornevo::imaging ALIAS ornevo_imaging)
add_library(Ornevo::segmentation ALIAS ornevo_segmentation)
