# Aravis::Aravis: the library of GenICam cameras. Its own pkg-config file asks for libusb's, which Debian's package
# does not bring; so the header is looked for, and the flags are those of GLib and libxml2.
find_path(ARAVIS_INCLUDE_DIR arv.h PATH_SUFFIXES aravis-0.8)
find_library(ARAVIS_LIBRARY aravis-0.8)
find_package(PkgConfig QUIET)
if(PKG_CONFIG_FOUND)
    pkg_check_modules(ARAVIS_NEEDS QUIET gio-2.0 libxml-2.0)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Aravis REQUIRED_VARS ARAVIS_LIBRARY ARAVIS_INCLUDE_DIR ARAVIS_NEEDS_FOUND)

if(Aravis_FOUND AND NOT TARGET Aravis::Aravis)
    add_library(Aravis::Aravis UNKNOWN IMPORTED)
    set_target_properties(Aravis::Aravis PROPERTIES
        IMPORTED_LOCATION ${ARAVIS_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES "${ARAVIS_INCLUDE_DIR};${ARAVIS_NEEDS_INCLUDE_DIRS}"
        INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${ARAVIS_INCLUDE_DIR};${ARAVIS_NEEDS_INCLUDE_DIRS}"
        INTERFACE_LINK_LIBRARIES "${ARAVIS_NEEDS_LINK_LIBRARIES}")
endif()
mark_as_advanced(ARAVIS_INCLUDE_DIR ARAVIS_LIBRARY)
