# cmake -D FRAME=<file> -D PICTURE=<file> -D OUTPUT=<file> -P FramePicture.cmake
#
# Puts what one SVG file draws into the empty element <g id="picture"> of another.
file(READ "${FRAME}" frame)
file(READ "${PICTURE}" picture)
string(REGEX REPLACE "^.*<svg[^>]*>(.*)</svg>.*$" "\\1" picture "${picture}")
string(REGEX REPLACE "(<g id=\"picture\"[^>]*>)" "\\1${picture}" framed "${frame}")
if(framed STREQUAL frame)
  message(FATAL_ERROR "${FRAME}: has no element <g id=\"picture\">")
endif()
file(WRITE "${OUTPUT}" "${framed}")
