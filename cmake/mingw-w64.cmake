# Cross-compiles for 64-bit Windows with Debian's MinGW-w64 (POSIX threads, for std::thread).
# Used by scripts/test-windows; the test programs run under Wine (CMAKE_CROSSCOMPILING_EMULATOR).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# MinGW-w64's thread-safe POSIX time functions (localtime_r).
set(CMAKE_CXX_FLAGS_INIT "-D_POSIX_THREAD_SAFE_FUNCTIONS=200112L")
# Self-contained programs: no MinGW runtime DLLs needed beside them. Qt and the
# programs linked against Qt's DLLs share one MinGW runtime instead (its DLLs go
# beside them): scripts/build-windows sets KESTREL_MINGW_SHARED_RUNTIME for those.
if(NOT "$ENV{KESTREL_MINGW_SHARED_RUNTIME}")
  set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
endif()
find_program(KESTREL_WINE NAMES wine64 wine)
if(KESTREL_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${KESTREL_WINE})
endif()
