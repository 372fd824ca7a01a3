# Target windows_folder: <build folder>/KorvaneEx holds what a Windows PC needs to run the head unit and the tools, as
# it stands: programs, libraries, the compiler's libraries, the device and the licences of all. Nothing in it has symbols
# for a debugger.
set(_folder "${PROJECT_BINARY_DIR}/KorvaneEx")
set(_targets headunit headunitctl mainapp lqimage lqlayout korvane korvaneex)
set(_service device/NandFlash/Application/Bin/LQ_ShareMem.dll)

set(_strip_commands)
foreach(_target IN LISTS _targets)
  list(APPEND _strip_commands
       COMMAND "${CMAKE_STRIP}" -o "${_folder}/$<TARGET_FILE_NAME:${_target}>" "$<TARGET_FILE:${_target}>")
endforeach()
foreach(_file IN LISTS KORVANE_RUNTIME_LIBRARIES)
  cmake_path(GET _file FILENAME _name)
  list(APPEND _strip_commands COMMAND "${CMAKE_STRIP}" -o "${_folder}/${_name}" "${_file}")
endforeach()

add_custom_target(windows_folder
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${_folder}"
  COMMAND "${CMAKE_COMMAND}" -E make_directory "${_folder}"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${KORVANE_DEVICE_DIR}" "${_folder}/device"
  COMMAND "${CMAKE_STRIP}" "${_folder}/${_service}"
  ${_strip_commands}
  COMMAND "${CMAKE_COMMAND}" -E copy "${PROJECT_SOURCE_DIR}/LICENSE" "${_folder}"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${KORVANE_WINDOWS_LIBRARIES}/licences" "${_folder}/licences"
  COMMAND "${PROJECT_SOURCE_DIR}/tools/windows/copy-licences" "${_folder}/licences" fonts-noto-core fonts-wqy-microhei
  DEPENDS ${_targets} lq_sharemem device_content
  COMMENT "Filling ${_folder}"
  VERBATIM)
