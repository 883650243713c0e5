# Cross-builds for 64-bit Windows with MinGW-w64. The environment variable QTDIR names a Qt for MinGW whose tools (moc,
# uic, rcc, lrelease) run on this machine, as cross-built ones do.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 "$ENV{QTDIR}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Runs the tests of such a build. Debian keeps the 64-bit loader out of the search path.
find_program(WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR "${WINE}")
endif()
