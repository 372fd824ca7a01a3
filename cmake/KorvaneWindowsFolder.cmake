# Target windows_folder: <build folder>/KorvaneEx holds what a Windows PC needs to run the head unit and the tools, as
# it stands: programs, libraries, the compiler's libraries and the device.
set(_folder "${PROJECT_BINARY_DIR}/KorvaneEx")
set(_programs headunit headunitctl mainapp lqimage lqlayout)
set(_files ${KORVANE_RUNTIME_LIBRARIES} "${PROJECT_SOURCE_DIR}/LICENSE")
foreach(_target IN LISTS _programs ITEMS korvane korvaneex)
  list(APPEND _files "$<TARGET_FILE:${_target}>")
endforeach()

add_custom_target(windows_folder
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${_folder}"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${_folder}"
  COMMAND "${CMAKE_COMMAND}" -E copy ${_files} "${_folder}"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${KORVANE_DEVICE_DIR}" "${_folder}/device"
  DEPENDS ${_programs} korvane korvaneex lq_sharemem device_content
  COMMENT "Filling ${_folder}"
  VERBATIM)
