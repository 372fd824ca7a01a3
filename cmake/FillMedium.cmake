# cmake -D LIST=<file> -D FOLDER=<folder> -P FillMedium.cmake
#
# Makes the files and folders of a medium. Each line of the list names one from the medium's folder on: a folder if the
# name ends with a slash, else a file, whose size in bytes may stand behind " = ". Lines that begin with "#" and empty
# ones are left out.
file(STRINGS "${LIST}" lines ENCODING UTF-8)
file(MAKE_DIRECTORY "${FOLDER}")
foreach(line IN LISTS lines)
  if(line MATCHES "^(#|$)")
    continue()
  endif()
  if(line MATCHES "/$")
    file(MAKE_DIRECTORY "${FOLDER}/${line}")
    continue()
  endif()
  set(size 64)
  if(line MATCHES "^(.*) = ([0-9]+)$")
    set(line "${CMAKE_MATCH_1}")
    set(size "${CMAKE_MATCH_2}")
  endif()
  string(REPEAT "." ${size} contents)
  file(WRITE "${FOLDER}/${line}" "${contents}")
endforeach()
