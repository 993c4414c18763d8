# Lets CMake make the build files of a Mac on this machine, with a compiler that knows the platform and without its SDK. Nothing
# can be compiled with them, but all that they would do can be read, and whatever is only copied can be made.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_VERSION 19.0)
foreach(language IN ITEMS C CXX OBJCXX)
  set(CMAKE_${language}_COMPILER_TARGET x86_64-apple-macos10.15)
  set(CMAKE_${language}_COMPILER_WORKS ON)
endforeach()
find_program(CLANG clang REQUIRED)
find_program(CLANGXX clang++ REQUIRED)
set(CMAKE_C_COMPILER ${CLANG})
set(CMAKE_CXX_COMPILER ${CLANGXX})
set(CMAKE_OBJCXX_COMPILER ${CLANGXX})
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
# Needs no more than a name: nothing is installed from here.
set(CMAKE_INSTALL_NAME_TOOL install_name_tool)
set(CMAKE_OSX_SYSROOT ${CMAKE_CURRENT_LIST_DIR})
