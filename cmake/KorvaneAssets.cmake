# Pictures drawn as SVG become image files of the simulated device.
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
