# The shared library.
find_package(PkgConfig REQUIRED)
pkg_check_modules(LIBPLIST REQUIRED IMPORTED_TARGET libplist-2.0)
pkg_check_modules(LIBSYSTEMD REQUIRED IMPORTED_TARGET libsystemd)

# Compiled once, as objects: the shared library exports only the public functions, and unit tests can use the rest.
add_library(framework OBJECT
  Class/ORVFunc/Linux/Observe.cpp
  Class/Platform/Linux/EventLoop.cpp
  Class/Platform/Linux/FileReading.cpp
  Class/Platform/Linux/FileReplacement.cpp
  Class/Platform/Linux/FileRights.cpp
  Class/Platform/Linux/FolderOpening.cpp
  Class/Platform/Linux/Folders.cpp
  Class/Platform/Linux/LocalizedStrings.cpp
  Class/Platform/Linux/NotificationCentre.cpp
  Class/Platform/Linux/Poster.cpp
  Class/Platform/Linux/PropertyList.cpp
  Class/Platform/Linux/PropertyListLimits.cpp
  Class/Platform/Linux/Receiver.cpp
  Class/Platform/Linux/SessionBus.cpp
  Class/Platform/Linux/SystemLanguage.cpp
  Class/Platform/Linux/SystemPath.cpp
  Class/Platform/Linux/Text.cpp
  Class/Platform/Linux/XmlEncoding.cpp
  Class/USB/Linux/BusWalk.cpp
  Class/USB/Linux/DeviceRequest.cpp
  Class/USB/Linux/PlatformStatus.cpp
  Class/USB/Linux/USBDevice.cpp)
target_compile_definitions(framework
  PUBLIC MAKER_USB_VENDOR_ID=${MAKER_USB_VENDOR_ID}
  PRIVATE TRX_BUILT_IN_SYSTEM_ROOT="${CMAKE_INSTALL_FULL_DATADIR}/orvikaudio")
target_include_directories(framework
  PUBLIC ${PROJECT_SOURCE_DIR}/include
         Class/ORVFunc
         Class/Platform Class/Platform/Linux
         Class/USB Class/USB/Linux)
target_link_libraries(framework PRIVATE framework-shared PUBLIC PkgConfig::LIBPLIST PkgConfig::LIBSYSTEMD)
# The optimiser must not merge identical functions: each needs its own debug information, from which tests/installation/abi
# describes the exported interface.
target_compile_options(framework PRIVATE $<$<AND:$<CXX_COMPILER_ID:GNU>,$<NOT:$<CONFIG:Debug>>>:-fno-ipa-icf>)

write_version_script(${CMAKE_CURRENT_BINARY_DIR}/TRX-SELVASetup.map
  ${public_headers} ${PROJECT_SOURCE_DIR}/include/TRX-SELVASetup/EventLoop.h)

add_library(TRX-SELVASetup SHARED)
add_library(TRX-SELVASetup::TRX-SELVASetup ALIAS TRX-SELVASetup)
target_link_libraries(TRX-SELVASetup PRIVATE framework)
target_include_directories(TRX-SELVASetup
  PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
set_target_properties(TRX-SELVASetup PROPERTIES
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}
  LINK_DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/TRX-SELVASetup.map)
# Texts stay valid for the life of the process, so the library is never unloaded. Its functions call each other, even if a host
# defines functions with the same names.
target_link_options(TRX-SELVASetup PRIVATE
  -Wl,-z,nodelete -Wl,-Bsymbolic-functions
  -Wl,--version-script=${CMAKE_CURRENT_BINARY_DIR}/TRX-SELVASetup.map)
# The functions of clang's sanitizers are in the program, so there the library may leave them undefined.
if(NOT (TRX_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang"))
  target_link_options(TRX-SELVASetup PRIVATE -Wl,--no-undefined)
endif()

install(TARGETS TRX-SELVASetup EXPORT TRX-SELVASetup
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
  NAMELINK_COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/TRX-SELVASetup
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
