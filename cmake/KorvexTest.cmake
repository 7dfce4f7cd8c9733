# SPDX-License-Identifier: MIT
include(GoogleTest)

# add_korvex_test(NAME SOURCES file... LIBRARIES target... [TIMEOUT seconds])
#
# Every test case runs in a process of its own, under tests/support/isolate: a fresh home, fresh XDG
# folders, a private session bus and Qt's offscreen platform.
function(add_korvex_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "SOURCES;LIBRARIES")
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 60)
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE
    korvex_options ${arg_LIBRARIES} GTest::gmock GTest::gtest_main)
  set_target_properties(${name} PROPERTIES
    CROSSCOMPILING_EMULATOR "${CMAKE_SOURCE_DIR}/tests/support/isolate")
  gtest_discover_tests(${name}
    TEST_PREFIX "${name}."
    DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT ${arg_TIMEOUT})
endfunction()
