# The framework in macOS's layout. CMake makes Versions/A, Current and the links to Headers, Resources and the library.

# The library reads its texts and its version at this fixed place (see VersionTexts.cpp), so it is installed there, whatever the
# prefix, and hosts are linked to this path, not to one below @rpath. A host with its own copy of the framework would still get the
# texts of the installed one.
set(TRX_FRAMEWORKS_FOLDER /Library/Frameworks CACHE STRING "Where the framework is installed and found by its hosts")

set(module_map ${CMAKE_CURRENT_SOURCE_DIR}/module.modulemap)
set(exported_symbols ${CMAKE_CURRENT_BINARY_DIR}/TRX-SELVASetup.exp)
write_exported_symbols_list(${exported_symbols} ${public_headers})

add_library(TRX-SELVASetup SHARED ${public_headers} ${module_map})
add_library(TRX-SELVASetup::TRX-SELVASetup ALIAS TRX-SELVASetup)

# --- Sources ----------------------------------------------------------------------------------------------------------

target_compile_definitions(TRX-SELVASetup PRIVATE MAKER_USB_VENDOR_ID=${MAKER_USB_VENDOR_ID})
# All code counts references by hand.
target_compile_options(TRX-SELVASetup PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:-fno-objc-arc>)
target_include_directories(TRX-SELVASetup
  PUBLIC ${PROJECT_SOURCE_DIR}/include
  PRIVATE Class/ORVFunc Class/ORVFunc/Apple
          Class/Platform Class/Platform/Apple
          Class/USB Class/USB/Apple)
target_link_libraries(TRX-SELVASetup PRIVATE
  framework-shared framework-iokit framework-foundation
  "-framework CoreFoundation" "-framework Foundation" "-framework IOKit")
target_link_options(TRX-SELVASetup PRIVATE -Wl,-exported_symbols_list,${exported_symbols})
set_target_properties(TRX-SELVASetup PROPERTIES
  LINK_DEPENDS ${exported_symbols}
  LINKER_LANGUAGE CXX
  OBJCXX_VISIBILITY_PRESET hidden)

# --- The bundle -------------------------------------------------------------------------------------------------------

set_target_properties(TRX-SELVASetup PROPERTIES
  FRAMEWORK ON
  FRAMEWORK_VERSION A
  PUBLIC_HEADER "${public_headers}"
  MACOSX_FRAMEWORK_INFO_PLIST ${PROJECT_SOURCE_DIR}/Resources/Info.plist.in
  MACHO_COMPATIBILITY_VERSION ${PROJECT_VERSION_MAJOR}
  MACHO_CURRENT_VERSION ${PROJECT_VERSION}
  INSTALL_NAME_DIR ${TRX_FRAMEWORKS_FOLDER}
  # Installation changes nothing, so a signature made in the build stays valid.
  BUILD_WITH_INSTALL_NAME_DIR ON)

set_source_files_properties(${module_map} PROPERTIES MACOSX_PACKAGE_LOCATION Modules)
# The one link that CMake does not make.
set(bundle ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/TRX-SELVASetup.framework)
file(MAKE_DIRECTORY ${bundle})
file(CREATE_LINK Versions/Current/Modules ${bundle}/Modules SYMBOLIC)

file(GLOB strings_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/Resources/*.lproj/Localizable.strings)
foreach(strings_file IN LISTS strings_files)
  cmake_path(GET strings_file PARENT_PATH language_folder)
  cmake_path(GET language_folder FILENAME language_folder)
  target_sources(TRX-SELVASetup PRIVATE ${strings_file})
  set_source_files_properties(${strings_file} PROPERTIES MACOSX_PACKAGE_LOCATION Resources/${language_folder})
endforeach()

install(TARGETS TRX-SELVASetup FRAMEWORK DESTINATION ${TRX_FRAMEWORKS_FOLDER} COMPONENT library)
