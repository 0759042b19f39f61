# Toolchain file: cross-compiles for 64-bit Windows with MinGW-w64, as Debian packages it. Libraries for Windows are
# looked for below CUEBRIGHT_WINDOWS_ROOT (an install prefix), programs such as moc on the machine that compiles.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The variant whose standard library has threads.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CUEBRIGHT_WINDOWS_ROOT)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${CUEBRIGHT_WINDOWS_ROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
