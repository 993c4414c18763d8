# Compares what the shared library exports with what its headers declare, and checks its SONAME.
# Needs LIBRARY, HEADERS (a list), INCLUDE, COMPILER, NM, READELF.

function(run output)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  set(${output} "${text}" PARENT_SCOPE)
endfunction()

# Declared: what stands before an opening parenthesis once comments are gone.
set(declared "")
foreach(header IN LISTS HEADERS)
  run(text ${COMPILER} -E -P -I${INCLUDE} -x c ${header})
  string(REGEX MATCHALL "ORV_[A-Za-z0-9_]+[ \n]*\\(" names "${text}")
  list(APPEND declared ${names})
endforeach()
list(TRANSFORM declared REPLACE "[ \n]*\\($" "")
list(REMOVE_DUPLICATES declared)
list(SORT declared)
list(LENGTH declared count)
if(count EQUAL 0)
  message(FATAL_ERROR "no function is declared in ${HEADERS}")
endif()

# Exported: every defined symbol but the names of versions, which are absolute.
run(text ${NM} -D --defined-only --without-symbol-versions ${LIBRARY})
string(REGEX MATCHALL "[^\n]+" lines "${text}")
list(FILTER lines EXCLUDE REGEX "^[0-9a-f]+ A ")
list(FILTER lines EXCLUDE REGEX " (__gcov_|__asan_|__ubsan_|__tsan_|__odr_asan)")
set(exported ${lines})
list(TRANSFORM exported REPLACE "^[0-9a-f ]+ [A-Za-z] " "")
list(SORT exported)

if(NOT exported STREQUAL declared)
  message(FATAL_ERROR "exported and declared functions differ\nexported: ${exported}\n"
                      "declared: ${declared}")
endif()

run(text ${READELF} -d ${LIBRARY})
if(NOT text MATCHES "Library soname: \\[libTRX-SELVASetup\\.so\\.1\\]")
  message(FATAL_ERROR "another SONAME:\n${text}")
endif()
message(STATUS "${count} functions declared and exported")
