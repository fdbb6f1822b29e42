# Builds 64-bit Windows programs with Debian's mingw-w64, and runs them with Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)

# What is built needs the system's own libraries only.
foreach(kind IN ITEMS EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static")
endforeach()

# Libraries come from the compiler's folders and from what scripts/windows-libraries.sh has built, never from this
# machine's own.
set(CMAKE_FIND_ROOT_PATH /usr/${triplet} "${CMAKE_CURRENT_LIST_DIR}/../build/windows-libraries/installed")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Only a library's own package file knows that it is a static one.
set(CMAKE_FIND_PACKAGE_PREFER_CONFIG TRUE)

# By its name, so that it need not be installed yet when a build folder is made.
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
