# tarrow_add_test(tst_name SOURCES … LIBRARIES … [DISPLAY] [TRAY] [TIMEOUT seconds])
#
# A Qt Test program registered with CTest. It runs with a home folder of its own; with DISPLAY also with an X server
# and a window manager of its own, with TRAY a tray beside them, so that tests may run side by side. Those that need
# neither have the label "headless", and the target headless_tests builds them.
add_custom_target(headless_tests)
function(tarrow_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 TEST "DISPLAY;TRAY" "TIMEOUT" "SOURCES;LIBRARIES")
  add_executable(${name} ${TEST_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests/support)
  target_link_libraries(${name} PRIVATE Qt6::Test ${TEST_LIBRARIES})
  tarrow_keep_libraries(${name})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  set(options)
  if(TEST_DISPLAY)
    list(APPEND options --display)
  endif()
  if(TEST_TRAY)
    list(APPEND options --tray)
  endif()
  tarrow_register_test(${name} TIMEOUT "${TEST_TIMEOUT}"
    COMMAND ${options} -- $<TARGET_FILE:${name}>)
  if(NOT options)
    set_tests_properties(${name} PROPERTIES LABELS headless)
    add_dependencies(headless_tests ${name})
  endif()
endfunction()

# Registers a command that scripts/isolated.sh runs: its options, "--", then the command.
function(tarrow_register_test name)
  cmake_parse_arguments(PARSE_ARGV 1 TEST "" "TIMEOUT" "COMMAND")
  if(NOT TEST_TIMEOUT)
    set(TEST_TIMEOUT 120)
  endif()
  if(TARROW_SANITIZE)
    math(EXPR TEST_TIMEOUT "${TEST_TIMEOUT} * 4")
  endif()
  add_test(NAME ${name} COMMAND ${CMAKE_SOURCE_DIR}/scripts/isolated.sh ${TEST_COMMAND})
  # Memory that there is not is refused, as it is without the sanitizers, and the programs go on.
  set_tests_properties(${name} PROPERTIES TIMEOUT ${TEST_TIMEOUT} ENVIRONMENT
    "ASAN_OPTIONS=allocator_may_return_null=1;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0")
endfunction()
