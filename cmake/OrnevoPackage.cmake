# Debian packages by CPack; scripts/package sets the rest up.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ornevo)
set(CPACK_PACKAGE_VENDOR "The Ornevo developers")
set(CPACK_PACKAGE_CONTACT "The Ornevo developers <contact@ornevo.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own, the first line of its description
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_COMPONENTS_ALL ornevo ornevo-dev)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_ORNEVO_PACKAGE_NAME ornevo)
set(CPACK_DEBIAN_ORNEVO_PACKAGE_SECTION graphics)
# What is loaded at run time is not seen by dpkg-shlibdeps: TIFF is read by a plugin of its own. The X11 platform
# comes with libqt6gui6, Wayland's with qt6-wayland.
set(CPACK_DEBIAN_ORNEVO_PACKAGE_DEPENDS qt6-image-formats-plugins)
set(CPACK_DEBIAN_ORNEVO_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_COMPONENT_ORNEVO_DESCRIPTION
"cut an object out of a photograph
Ornevo separates an object from its background: a few green strokes mark what
to keep, a few red ones what to remove, and the outline between them is
found. The object is shown over a colour, another picture or nothing,
touched up with brushes, and exported as PNG or JPEG.")

set(CPACK_DEBIAN_ORNEVO-DEV_PACKAGE_NAME ornevo-dev)
set(CPACK_DEBIAN_ORNEVO-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_ORNEVO-DEV_PACKAGE_DEPENDS "qt6-base-dev, libhwy-dev")
set(CPACK_COMPONENT_ORNEVO-DEV_DESCRIPTION
"libraries for cutting objects out of photographs
The imaging and segmentation libraries of Ornevo with their headers and a
CMake package: blurs, edge detectors and edge maps of pictures, the flooding
of a picture from marked pixels, and the softening of a cut-out's border.")
include(CPack)
