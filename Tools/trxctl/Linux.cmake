find_package(PkgConfig REQUIRED)
pkg_check_modules(LIBPLIST REQUIRED IMPORTED_TARGET libplist-2.0)
pkg_check_modules(LIBSYSTEMD REQUIRED IMPORTED_TARGET libsystemd)

# Everything but main(), so that the tests can reach the parts that no command line of today shows.
add_library(trxctl-parts STATIC
  Linux/Announcements.cpp
  Linux/CheckMixers.cpp
  Linux/ConnectedMixers.cpp
  Linux/LibraryText.cpp
  Linux/PlatformWords.cpp
  Linux/SessionBus.cpp
  Linux/SettingsFolder.cpp
  Linux/UdevRule.cpp)
target_include_directories(trxctl-parts PUBLIC . Linux)
target_compile_definitions(trxctl-parts PRIVATE MAKER_USB_VENDOR_ID=${MAKER_USB_VENDOR_ID})
target_link_libraries(trxctl-parts
  PUBLIC TRX-SELVASetup::TRX-SELVASetup nlohmann_json::nlohmann_json CLI11::CLI11
  PRIVATE trxctl-shared PkgConfig::LIBPLIST PkgConfig::LIBSYSTEMD)

add_executable(trxctl main.cpp)
target_link_libraries(trxctl PRIVATE trxctl-parts)
