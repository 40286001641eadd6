# Cross-building for 64-bit Windows with MinGW-w64. Qt and Qwt are those that scripts/windows builds; the
# environment's WINDOWS_QT_PREFIX says where they are.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

set(WINDOWS_QT_PREFIX "$ENV{WINDOWS_QT_PREFIX}" CACHE PATH "Folder of Qt and Qwt for Windows")
# CMake reads this file again in its checks of the compiler, which know the cache by this list alone.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES WINDOWS_QT_PREFIX)
if(NOT EXISTS "${WINDOWS_QT_PREFIX}/lib/cmake/Qt5")
    message(FATAL_ERROR "WINDOWS_QT_PREFIX does not name a Qt for Windows: \"${WINDOWS_QT_PREFIX}\". "
                        "scripts/windows builds one and configures with it.")
endif()

set(triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)

set(CMAKE_FIND_ROOT_PATH ${WINDOWS_QT_PREFIX} /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(QWT_STATIC ON)

# lrelease runs here, and the cross-built Qt has none: the distribution's serves.
file(GLOB Qt5LinguistTools_DIR /usr/lib/*/cmake/Qt5LinguistTools)

# Tests run under wine, with Qt's libraries on the path.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/lib/run-windows ${WINDOWS_QT_PREFIX}/bin)
