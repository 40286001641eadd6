# ZebCPP::ZebCPP: the camera SDK. The stand-in in sdk/ is a header only; with ZEBCPP_ROOT the maker's
# header ZebCPP/ZebCPP.h and library take its place.
if(NOT ZEBCPP_ROOT)
    add_library(ZebCPP INTERFACE)
    target_include_directories(ZebCPP INTERFACE ${PROJECT_SOURCE_DIR}/sdk)
    add_library(ZebCPP::ZebCPP ALIAS ZebCPP)
    return()
endif()

find_path(ZEBCPP_INCLUDE_DIR ZebCPP/ZebCPP.h PATHS ${ZEBCPP_ROOT} PATH_SUFFIXES include Include
          REQUIRED NO_DEFAULT_PATH)
find_library(ZEBCPP_LIBRARY NAMES ZebCPP PATHS ${ZEBCPP_ROOT} PATH_SUFFIXES lib lib64 Lib
             REQUIRED NO_DEFAULT_PATH)
add_library(ZebCPP::ZebCPP UNKNOWN IMPORTED)
set_target_properties(ZebCPP::ZebCPP PROPERTIES
    IMPORTED_LOCATION ${ZEBCPP_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${ZEBCPP_INCLUDE_DIR})
