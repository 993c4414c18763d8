# Warnings, sanitizers and hardening for every target of the project.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
                    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)

if(TRX_SANITIZE)
  add_compile_options(-fsanitize=${TRX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${TRX_SANITIZE})
endif()

# What is installed is hardened, whoever builds it. Debug builds are not installed, and sanitizers look at the same places
# themselves. All functions are bound at the start, so that no table of them stays writable.
if(NOT TRX_SANITIZE AND NOT APPLE)
  include(CheckCXXCompilerFlag)
  set(TRX_HARDENED_COMPILE_OPTIONS -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  check_cxx_compiler_flag(-fcf-protection HAS_CF_PROTECTION)  # not every processor has it
  if(HAS_CF_PROTECTION)
    list(APPEND TRX_HARDENED_COMPILE_OPTIONS -fcf-protection)
  endif()
  set(TRX_HARDENED_LINK_OPTIONS -Wl,-z,relro -Wl,-z,now)
  foreach(options TRX_HARDENED_COMPILE_OPTIONS TRX_HARDENED_LINK_OPTIONS)
    list(TRANSFORM ${options} REPLACE "(.+)" "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:\\1>")
  endforeach()
  add_compile_options(${TRX_HARDENED_COMPILE_OPTIONS})
  add_link_options(${TRX_HARDENED_LINK_OPTIONS})
endif()
