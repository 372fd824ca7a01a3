# Compiler settings that every target of the project shares.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

option(KORVANE_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
set(KORVANE_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined")

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

add_library(korvane_options INTERFACE)
target_include_directories(korvane_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(korvane_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
  -Woverloaded-virtual)
# A fused multiply-add rounds once where the controls' arithmetic is stated to round twice.
target_compile_options(korvane_options INTERFACE -ffp-contract=off)
if(KORVANE_WARNINGS_AS_ERRORS)
  target_compile_options(korvane_options INTERFACE -Werror)
endif()
if(KORVANE_SANITIZE)
  target_compile_options(korvane_options INTERFACE -fsanitize=${KORVANE_SANITIZE}
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_definitions(korvane_options INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(korvane_options INTERFACE -fsanitize=${KORVANE_SANITIZE})
endif()
