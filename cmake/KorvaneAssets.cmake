# What the simulated device holds: pictures drawn as SVG, layouts written as text, and files as they are.
if(CMAKE_CROSSCOMPILING)
  # They are the same everywhere, and the tools that make them run there.
  set(KORVANE_BUILT_DEVICE_DIR "${PROJECT_SOURCE_DIR}/build/release/device" CACHE PATH
      "The device root of a build for this machine, whose pictures and layouts a build for another one takes")
else()
  find_program(RSVG_CONVERT rsvg-convert)
  if(NOT RSVG_CONVERT)
    message(FATAL_ERROR "rsvg-convert is missing: install the Debian package librsvg2-bin")
  endif()
endif()

# Copies one file of that device to ours, `path` being where it lies in both.
function(_korvane_copy_built_file path)
  add_custom_command(
    OUTPUT "${KORVANE_DEVICE_DIR}/${path}"
    COMMAND "${CMAKE_COMMAND}" -E copy "${KORVANE_BUILT_DEVICE_DIR}/${path}" "${KORVANE_DEVICE_DIR}/${path}"
    DEPENDS "${KORVANE_BUILT_DEVICE_DIR}/${path}"
    COMMENT "Copying ${path} to the device"
    VERBATIM)
endfunction()

# korvane_add_images(<target> [FRAME <frame.svg>] [PREFIX <text>] [STYLES <folder> STATES <state>...]
#                    [FILES] <file.svg>...)
#
# Adds a target that converts each file, in its own size, into <prefix><name>.lqi in the device's image folder.
# With a frame, what is drawn in the file is put into the frame's empty element <g id="picture">, and the image
# has the frame's size. With states, each makes an image <prefix><name>_<state>.lqi: the same drawing under the
# style sheet <folder>/<state>.css, or as it is where there is none.
function(korvane_add_images target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "FRAME;PREFIX;STYLES" "STATES;FILES")
  set(work_dir "${CMAKE_CURRENT_BINARY_DIR}/${target}")
  file(MAKE_DIRECTORY "${work_dir}")
  set(images)
  foreach(file IN LISTS arg_UNPARSED_ARGUMENTS arg_FILES)
    get_filename_component(svg "${file}" ABSOLUTE)
    get_filename_component(name "${file}" NAME_WE)
    set(name "${arg_PREFIX}${name}")
    if(arg_FRAME)
      get_filename_component(frame "${arg_FRAME}" ABSOLUTE)
      set(framed "${work_dir}/${name}.svg")
      set(script "${PROJECT_SOURCE_DIR}/cmake/FramePicture.cmake")
      add_custom_command(
        OUTPUT "${framed}"
        COMMAND "${CMAKE_COMMAND}" -D "FRAME=${frame}" -D "PICTURE=${svg}" -D "OUTPUT=${framed}" -P "${script}"
        DEPENDS "${svg}" "${frame}" "${script}"
        COMMENT "Framing ${name}.svg"
        VERBATIM)
      set(svg "${framed}")
    endif()
    if(NOT arg_STATES)
      _korvane_convert_image("${svg}" "${name}" "")
    endif()
    foreach(state IN LISTS arg_STATES)
      get_filename_component(style "${arg_STYLES}/${state}.css" ABSOLUTE)
      if(NOT EXISTS "${style}")
        set(style "")
      endif()
      _korvane_convert_image("${svg}" "${name}_${state}" "${style}")
    endforeach()
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${images})
endfunction()

# Converts one file, under a style sheet unless its name is empty, and adds the image to the caller's list.
function(_korvane_convert_image svg name style)
  set(image_dir NandFlash/Application/Resource/Image)
  file(MAKE_DIRECTORY "${KORVANE_DEVICE_DIR}/${image_dir}")
  set(png "${work_dir}/${name}.png")
  set(image "${KORVANE_DEVICE_DIR}/${image_dir}/${name}.lqi")
  set(images ${images} "${image}" PARENT_SCOPE)
  if(CMAKE_CROSSCOMPILING)
    _korvane_copy_built_file("${image_dir}/${name}.lqi")
    return()
  endif()
  add_custom_command(
    OUTPUT "${image}"
    COMMAND "${RSVG_CONVERT}" "$<$<BOOL:${style}>:--stylesheet=${style}>" --output "${png}" "${svg}"
    COMMAND lqimage encode "${png}" "${image}"
    DEPENDS "${svg}" ${style} lqimage
    BYPRODUCTS "${png}"
    COMMENT "Converting ${name}"
    COMMAND_EXPAND_LISTS
    VERBATIM)
endfunction()

# korvane_add_layouts(<target> [IMAGES <target>...] [FILES] <file.ini>...)
#
# Adds a target that checks each file and compiles it into <name>.bin in the device's layout folder. An error in a
# layout fails the build, a warning is shown. The images that the layouts name are those of the given targets;
# without any they are not looked for.
function(korvane_add_layouts target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "IMAGES;FILES")
  set(layout_path NandFlash/Application/Resource/Layout)
  set(layout_dir "${KORVANE_DEVICE_DIR}/${layout_path}")
  file(MAKE_DIRECTORY "${layout_dir}")
  set(layouts)
  foreach(file IN LISTS arg_UNPARSED_ARGUMENTS arg_FILES)
    get_filename_component(ini "${file}" ABSOLUTE)
    get_filename_component(name "${file}" NAME_WE)
    list(APPEND layouts "${layout_dir}/${name}.bin")
    if(CMAKE_CROSSCOMPILING)
      _korvane_copy_built_file("${layout_path}/${name}.bin")
      continue()
    endif()
    add_custom_command(
      OUTPUT "${layout_dir}/${name}.bin"
      COMMAND lqlayout check --device-root "${KORVANE_DEVICE_DIR}" "$<$<NOT:$<BOOL:${arg_IMAGES}>>:--no-images>"
              "${ini}"
      COMMAND lqlayout compile "${ini}" "${layout_dir}/${name}.bin"
      DEPENDS "${ini}" lqlayout device_fonts ${arg_IMAGES}
      COMMENT "Compiling ${name}.ini"
      COMMAND_EXPAND_LISTS
      VERBATIM)
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

# korvane_add_medium(<target> FOLDER <folder below the device root> LIST <file>)
#
# Adds a target that makes the files and folders of a medium, as cmake/FillMedium.cmake reads them from the list.
# What else lies in the folder stays.
function(korvane_add_medium target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "FOLDER;LIST" "")
  get_filename_component(list "${arg_LIST}" ABSOLUTE)
  set(script "${PROJECT_SOURCE_DIR}/cmake/FillMedium.cmake")
  set(stamp "${CMAKE_CURRENT_BINARY_DIR}/${target}.stamp")
  add_custom_command(
    OUTPUT "${stamp}"
    COMMAND "${CMAKE_COMMAND}" -D "LIST=${list}" -D "FOLDER=${KORVANE_DEVICE_DIR}/${arg_FOLDER}" -P "${script}"
    COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
    DEPENDS "${list}" "${script}"
    COMMENT "Filling ${arg_FOLDER}"
    VERBATIM)
  add_custom_target(${target} ALL DEPENDS "${stamp}")
endfunction()
