include(GoogleTest)

# korvane_add_test(<name> [ALONE] SOURCES <file>... [LIBRARIES <target>...])
#
# One test program. Each of its tests runs in a process of its own; they are listed when ctest starts, so that a
# program that cannot run fails a test run rather than the build. Its windows meet those of no other test.
# ALONE: its tests run while no other does, since they use what there is only one of, such as the pointer.
function(korvane_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "ALONE" "" "SOURCES;LIBRARIES")
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE korvane_options ${arg_LIBRARIES} GTest::gtest_main)
  if(UNIX)
    target_link_libraries(${name} PRIVATE korvane_scratch_runtime_folder)
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES PROPERTIES TIMEOUT 120
    RUN_SERIAL ${arg_ALONE})
endfunction()
