# Objective-C++ with the compiler that knows it best, whatever compiles the rest; on macOS that is the compiler of the rest.
if(NOT APPLE)
  find_program(CLANGXX clang++ REQUIRED)
  set(CMAKE_OBJCXX_COMPILER ${CLANGXX})
endif()
enable_language(OBJCXX)
set(CMAKE_OBJCXX_STANDARD 20)
set(CMAKE_OBJCXX_STANDARD_REQUIRED ON)
set(CMAKE_OBJCXX_EXTENSIONS OFF)
