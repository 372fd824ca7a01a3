# What `cmake --install` puts in place: both libraries, the headers that their users include, the display
# modules, the system-information service and its client, the tools for images and layouts, and the package
# that find_package(KorvaneEx) finds.
include(CMakePackageConfigHelpers)

# korvane_reached_headers(<result> <header>...)
#
# The given headers and all that they include of this project, as paths from its root.
function(korvane_reached_headers result)
  set(reached)
  set(waiting ${ARGN})
  while(waiting)
    list(POP_FRONT waiting header)
    if(header IN_LIST reached)
      continue()
    endif()
    list(APPEND reached "${header}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${header}")
    file(STRINGS "${PROJECT_SOURCE_DIR}/${header}" lines REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
    foreach(line IN LISTS lines)
      string(REGEX REPLACE "^[^\"]*\"([^\"]*)\".*" "\\1" included "${line}")
      if(EXISTS "${PROJECT_SOURCE_DIR}/${included}")
        list(APPEND waiting "${included}")
      endif()
    endforeach()
  endwhile()
  set(${result} ${reached} PARENT_SCOPE)
endfunction()

set(header_dir "${CMAKE_INSTALL_INCLUDEDIR}/korvaneex")
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/KorvaneEx")

korvane_reached_headers(headers KorvaneEx.h platform/Display.h platform/Simulation.h service/SysInfoService.h
                        sysinfo/SysInfoFields.h)
foreach(header IN LISTS headers)
  get_filename_component(folder "${header}" DIRECTORY)
  install(FILES "${PROJECT_SOURCE_DIR}/${header}" DESTINATION "${header_dir}/${folder}")
endforeach()

target_compile_features(korvane INTERFACE cxx_std_17)
set_target_properties(korvaneex PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS korvane EXPORT KorvaneTargets)
install(TARGETS korvaneex EXPORT KorvaneExTargets)
# Programs load the service from the device, where a copy of it or a link lies as
# \NandFlash\Application\Bin\LQ_ShareMem.dll.
set_target_properties(lq_sharemem PROPERTIES INSTALL_RPATH "$ORIGIN/..")
install(TARGETS lq_sharemem DESTINATION "${CMAKE_INSTALL_LIBDIR}/korvaneex")
install(EXPORT KorvaneTargets NAMESPACE Korvane:: DESTINATION "${package_dir}")
install(EXPORT KorvaneExTargets NAMESPACE KorvaneEx:: DESTINATION "${package_dir}")

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/KorvaneExConfig.cmake.in"
                              "${PROJECT_BINARY_DIR}/KorvaneExConfig.cmake"
                              INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/KorvaneExConfigVersion.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/KorvaneExConfig.cmake" "${PROJECT_BINARY_DIR}/KorvaneExConfigVersion.cmake"
        DESTINATION "${package_dir}")

file(RELATIVE_PATH libraries_from_programs "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
set_target_properties(headunitctl lqimage lqlayout PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_programs}")
install(TARGETS headunitctl lqimage lqlayout)
if(WIN32)
  install(FILES ${KORVANE_RUNTIME_LIBRARIES} DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
