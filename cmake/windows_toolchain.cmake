# Programs for Windows made by Debian's mingw-w64. What they are linked with was built into
# ORBELLE_WINDOWS_PREFIX, a variable of the environment, by scripts/build-windows.sh.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# The stack is aligned to 16 bytes there, and GCC moves 32 at a time as if it were to more.
set(CMAKE_C_FLAGS_INIT -Wa,-muse-unaligned-vector-move)
set(CMAKE_CXX_FLAGS_INIT -Wa,-muse-unaligned-vector-move)

set(CMAKE_FIND_ROOT_PATH $ENV{ORBELLE_WINDOWS_PREFIX} /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} $ENV{ORBELLE_WINDOWS_PREFIX}/lib/pkgconfig)

# The one beside it is that of a DLL.
set(ZLIB_LIBRARY /usr/${triplet}/lib/libz.a CACHE FILEPATH "")

set(CMAKE_CROSSCOMPILING_EMULATOR env WINEDEBUG=-all wine)
