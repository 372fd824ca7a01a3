include(KorvaneTest)

option(KORVANE_FUZZERS "Build the fuzz targets as libFuzzer programs, too (needs Clang)" OFF)

# korvane_add_fuzz(<name> CORPUS <folder> SOURCES <file>... [LIBRARIES <target>...])
#
# One of the sources defines LLVMFuzzerTestOneInput. It becomes a test program that runs over the files of
# tests/fuzz/corpus/<folder> and over mutations of them, the same ones every time. Classes that the engine keeps to
# itself are compiled in as sources. With KORVANE_FUZZERS there is also a program <name>-libfuzzer that searches on.
function(korvane_add_fuzz name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "CORPUS" "SOURCES;LIBRARIES")
  set(corpus "${PROJECT_SOURCE_DIR}/tests/fuzz/corpus/${arg_CORPUS}")
  set(driver "${PROJECT_SOURCE_DIR}/tests/fuzz/CorpusTest.cpp")
  korvane_add_test(${name} SOURCES ${driver} ${arg_SOURCES} LIBRARIES korvane ${arg_LIBRARIES})
  target_compile_definitions(${name} PRIVATE "KORVANE_FUZZ_NAME=${name}" "KORVANE_FUZZ_CORPUS=\"${corpus}\"")
  if(KORVANE_FUZZERS)
    add_executable(${name}-libfuzzer ${arg_SOURCES})
    target_link_libraries(${name}-libfuzzer PRIVATE korvane_options korvane ${arg_LIBRARIES})
    target_compile_options(${name}-libfuzzer PRIVATE -fsanitize=fuzzer)
    target_link_options(${name}-libfuzzer PRIVATE -fsanitize=fuzzer)
  endif()
endfunction()
