# The linkers' lists for a made-up header with functions of several versions. Needs MODULE and FOLDER; with MISSING, one function does
# not say its version.
include(${MODULE})

set(header ${FOLDER}/Header.h)
file(WRITE ${header} [=[
#define ORV_EXPORT __attribute__((visibility("default")))
/** A type. Since 1.0. */
typedef int StatusCode;
/** Came later. Any thread. Since
 * 1.10. */
ORV_EXPORT StatusCode ORV_Newest(void);
/** Since 1.0. */
ORV_EXPORT StatusCode ORV_First(int,
                                int);
/** Since 1.2. */
ORV_EXPORT const char *ORV_Second(void);
/** Since 1.0. */
ORV_EXPORT StatusCode ORV_Third(void);
]=])
if(MISSING)
  file(APPEND ${header} "/** A type. Since 1.0. */\ntypedef int A;\n/** Nothing. */\nORV_EXPORT int ORV_Nameless(void);\n")
endif()

function(expect file expected)
  file(READ ${file} written)
  if(NOT written STREQUAL expected)
    message(FATAL_ERROR "${file} is\n${written}")
  endif()
endfunction()

write_version_script(${FOLDER}/script ${header})
expect(${FOLDER}/script "TRX_SELVASETUP_1.0 {
  global:
    ORV_First;
    ORV_Third;
  local:
    *;
};
TRX_SELVASETUP_1.2 {
  global:
    ORV_Second;
} TRX_SELVASETUP_1.0;
TRX_SELVASETUP_1.10 {
  global:
    ORV_Newest;
} TRX_SELVASETUP_1.2;
")

write_exported_symbols_list(${FOLDER}/list ${header})
expect(${FOLDER}/list "_ORV_Newest\n_ORV_First\n_ORV_Second\n_ORV_Third\n")
