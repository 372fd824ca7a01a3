# What the simulated device holds: pictures drawn as SVG, layouts written as text, and files as they are.
find_program(RSVG_CONVERT rsvg-convert)
if(NOT RSVG_CONVERT)
  message(FATAL_ERROR "rsvg-convert is missing: install the Debian package librsvg2-bin")
endif()

# korvane_add_images(<target> <file.svg>...)
#
# Adds a target that converts each file, in its own size, into <name>.lqi in the device's image folder.
function(korvane_add_images target)
  set(image_dir "${KORVANE_DEVICE_DIR}/NandFlash/Application/Resource/Image")
  set(png_dir "${CMAKE_CURRENT_BINARY_DIR}/${target}")
  file(MAKE_DIRECTORY "${image_dir}" "${png_dir}")
  set(images)
  foreach(file IN LISTS ARGN)
    get_filename_component(svg "${file}" ABSOLUTE)
    get_filename_component(name "${file}" NAME_WE)
    add_custom_command(
      OUTPUT "${image_dir}/${name}.lqi"
      COMMAND "${RSVG_CONVERT}" --output "${png_dir}/${name}.png" "${svg}"
      COMMAND lqimage encode "${png_dir}/${name}.png" "${image_dir}/${name}.lqi"
      DEPENDS "${svg}" lqimage
      BYPRODUCTS "${png_dir}/${name}.png"
      COMMENT "Converting ${name}.svg"
      VERBATIM)
    list(APPEND images "${image_dir}/${name}.lqi")
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${images})
endfunction()

# korvane_add_layouts(<target> <file.ini>...)
#
# Adds a target that compiles each file into <name>.bin in the device's layout folder.
function(korvane_add_layouts target)
  set(layout_dir "${KORVANE_DEVICE_DIR}/NandFlash/Application/Resource/Layout")
  file(MAKE_DIRECTORY "${layout_dir}")
  set(layouts)
  foreach(file IN LISTS ARGN)
    get_filename_component(ini "${file}" ABSOLUTE)
    get_filename_component(name "${file}" NAME_WE)
    add_custom_command(
      OUTPUT "${layout_dir}/${name}.bin"
      COMMAND lqlayout compile "${ini}" "${layout_dir}/${name}.bin"
      DEPENDS "${ini}" lqlayout
      COMMENT "Compiling ${name}.ini"
      VERBATIM)
    list(APPEND layouts "${layout_dir}/${name}.bin")
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${layouts})
endfunction()

# korvane_add_device_files(<target> DESTINATION <folder below the device root> <file>...)
#
# Adds a target that copies each file, whenever it changes, into a folder of the device.
function(korvane_add_device_files target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESTINATION" "")
  set(folder "${KORVANE_DEVICE_DIR}/${arg_DESTINATION}")
  file(MAKE_DIRECTORY "${folder}")
  set(copies)
  foreach(file IN LISTS arg_UNPARSED_ARGUMENTS)
    get_filename_component(source "${file}" ABSOLUTE)
    get_filename_component(name "${file}" NAME)
    add_custom_command(
      OUTPUT "${folder}/${name}"
      COMMAND "${CMAKE_COMMAND}" -E copy "${source}" "${folder}/${name}"
      DEPENDS "${source}"
      COMMENT "Copying ${name} to the device"
      VERBATIM)
    list(APPEND copies "${folder}/${name}")
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${copies})
endfunction()
