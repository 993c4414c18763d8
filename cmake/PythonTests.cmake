# Tests that are suites of Python's unittest module.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# Runs a suite of the current folder:
#
#   add_python_test(NAME SUITE [TIMEOUT seconds] [ENVIRONMENT variable=value...] [MIXERS number [WRAPPER program]])
#
# With MIXERS it runs with a private session bus and this number of software mixers, which the program in TRX_MIXER_CTL controls;
# a wrapper is a program that runs the suite.
function(add_python_test name suite)
  cmake_parse_arguments(PARSE_ARGV 2 test "" "TIMEOUT;MIXERS;WRAPPER" "ENVIRONMENT")
  # -B: no compiled files beside the sources.
  set(command ${Python3_EXECUTABLE} -B -m unittest ${suite})
  set(environment ${test_ENVIRONMENT})
  if(DEFINED test_MIXERS)
    find_program(DBUS_RUN_SESSION dbus-run-session REQUIRED)
    list(PREPEND command
      ${DBUS_RUN_SESSION} -- $<TARGET_FILE:trx-mixer-sim> --units ${test_MIXERS} -- ${test_WRAPPER})
    list(APPEND environment TRX_MIXER_CTL=$<TARGET_FILE:trx-mixer-ctl>)
  endif()
  add_test(NAME ${name} COMMAND ${command} WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}")
  if(DEFINED test_TIMEOUT)
    set_tests_properties(${name} PROPERTIES TIMEOUT ${test_TIMEOUT})
  endif()
endfunction()
