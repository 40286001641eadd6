# Qwt::Qwt: the Qwt widgets built for Qt 5. Debian calls the library qwt-qt5, other installations qwt;
# QWT_ROOT may name the folder of one of its own. On Windows Qwt is taken for a DLL unless QWT_STATIC is set.
find_path(QWT_INCLUDE_DIR qwt_slider.h
    HINTS ${QWT_ROOT} ENV QWT_ROOT
    PATH_SUFFIXES include/qwt qwt include/qt5/qwt qt5/qwt include/qwt-qt5 qwt-qt5 include)
find_library(QWT_LIBRARY NAMES qwt-qt5 qwt
    HINTS ${QWT_ROOT} ENV QWT_ROOT
    PATH_SUFFIXES lib lib64)

if(QWT_INCLUDE_DIR)
    file(STRINGS ${QWT_INCLUDE_DIR}/qwt_global.h QWT_VERSION REGEX "define QWT_VERSION_STR")
    string(REGEX REPLACE ".*\"(.*)\".*" "\\1" QWT_VERSION "${QWT_VERSION}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qwt
    REQUIRED_VARS QWT_LIBRARY QWT_INCLUDE_DIR
    VERSION_VAR QWT_VERSION)

if(Qwt_FOUND AND NOT TARGET Qwt::Qwt)
    find_package(Qt5 REQUIRED COMPONENTS Widgets)
    add_library(Qwt::Qwt UNKNOWN IMPORTED)
    set_target_properties(Qwt::Qwt PROPERTIES
        IMPORTED_LOCATION ${QWT_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${QWT_INCLUDE_DIR}
        INTERFACE_SYSTEM_INCLUDE_DIRECTORIES ${QWT_INCLUDE_DIR}
        INTERFACE_LINK_LIBRARIES Qt5::Widgets)
    if(WIN32 AND NOT QWT_STATIC)
        set_property(TARGET Qwt::Qwt PROPERTY INTERFACE_COMPILE_DEFINITIONS QWT_DLL)
    endif()
endif()
mark_as_advanced(QWT_INCLUDE_DIR QWT_LIBRARY)
