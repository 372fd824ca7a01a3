# Target device_fonts: puts the fonts of the simulated device into its Font folder. They come from the
# distribution's font packages, so that nothing depends on what else the system has installed.
set(KORVANE_FONT_DIR "/usr/share/fonts/truetype" CACHE PATH "Where the distribution keeps its TrueType fonts")

set(_device_font_dir "${KORVANE_DEVICE_DIR}/NandFlash/Application/Resource/Font")
set(_device_fonts "")

function(_korvane_device_font package file)
  set(source "${KORVANE_FONT_DIR}/${file}")
  if(NOT EXISTS "${source}")
    message(FATAL_ERROR "The font file ${source} is missing: install the Debian package ${package}, "
                        "or set KORVANE_FONT_DIR")
  endif()
  cmake_path(GET file FILENAME name)
  set(target "${_device_font_dir}/${name}")
  add_custom_command(OUTPUT "${target}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${_device_font_dir}"
    COMMAND ${CMAKE_COMMAND} -E copy "${source}" "${target}"
    DEPENDS "${source}"
    COMMENT "Copying ${name} to the device"
    VERBATIM)
  set(_device_fonts ${_device_fonts} "${target}" PARENT_SCOPE)
endfunction()

_korvane_device_font(fonts-noto-core noto/NotoSans-Regular.ttf)
_korvane_device_font(fonts-noto-core noto/NotoSans-Bold.ttf)
_korvane_device_font(fonts-noto-core noto/NotoSansArabic-Regular.ttf)
_korvane_device_font(fonts-noto-core noto/NotoSansDevanagari-Regular.ttf)
_korvane_device_font(fonts-noto-core noto/NotoSansThai-Regular.ttf)
_korvane_device_font(fonts-wqy-microhei wqy/wqy-microhei.ttc)

add_custom_target(device_fonts ALL DEPENDS ${_device_fonts})
