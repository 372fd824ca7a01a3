# What every target on Windows has beyond KorvaneCompiler.

# The libraries' names are those that programs on the device know.
set(CMAKE_SHARED_LIBRARY_PREFIX "")
set(CMAKE_SHARED_MODULE_PREFIX "")

# Names of files and command lines are UTF-8, and a pixel is a pixel of the screen.
enable_language(RC)
add_library(korvane_program_manifest OBJECT "${PROJECT_SOURCE_DIR}/platform/windows/program/program.rc")
set_source_files_properties("${PROJECT_SOURCE_DIR}/platform/windows/program/program.rc" PROPERTIES
  OBJECT_DEPENDS "${PROJECT_SOURCE_DIR}/platform/windows/program/program.manifest")
target_sources(korvane_options INTERFACE
  "$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:$<TARGET_OBJECTS:korvane_program_manifest>>")

# The compiler's own libraries, which programs look for in their folder.
set(KORVANE_RUNTIME_LIBRARIES)
foreach(name IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libgcc_s_dw2-1.dll libwinpthread-1.dll)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${name}"
                  OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
  # A name that it does not know it gives back as it is; each architecture has one of the two in the middle.
  if(IS_ABSOLUTE "${file}")
    list(APPEND KORVANE_RUNTIME_LIBRARIES "${file}")
  endif()
endforeach()
file(COPY ${KORVANE_RUNTIME_LIBRARIES} DESTINATION "${PROJECT_BINARY_DIR}/bin" FOLLOW_SYMLINK_CHAIN)
