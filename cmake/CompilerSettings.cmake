# Warnings are errors in every target of ours; include directories of libraries are system directories.
add_library(mavCycEd_compiler_settings INTERFACE)
target_compile_options(mavCycEd_compiler_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# GCC 12 sees overlapping copies in correct string concatenations when it optimises.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(mavCycEd_compiler_settings INTERFACE -Wno-restrict)
endif()

if(MAVCYCED_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# What a fuzz target is made of tells which ways it takes. The library's checks of indices are on.
if(MAVCYCED_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -g)
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
endif()

# Builds one of our targets with the project's settings. Private: nothing of it reaches those who link the target.
function(mavcyced_settings target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:mavCycEd_compiler_settings>)
endfunction()
