# Warnings and sanitizers for every target of the project.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
                    $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)

if(TRX_SANITIZE)
  add_compile_options(-fsanitize=${TRX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${TRX_SANITIZE})
endif()
