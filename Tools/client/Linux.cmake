find_package(PkgConfig REQUIRED)
pkg_check_modules(LIBPLIST REQUIRED IMPORTED_TARGET libplist-2.0)
pkg_check_modules(LIBSYSTEMD REQUIRED IMPORTED_TARGET libsystemd)

add_library(trx-client STATIC
  Linux/AutoApply.cpp
  Linux/LibraryText.cpp
  Linux/MixerChecks.cpp
  Linux/MixerWatch.cpp
  Linux/Mixers.cpp
  Linux/PluggedMixer.cpp
  Linux/SessionBus.cpp
  Linux/StoredSettings.cpp
  Linux/UdevRule.cpp)
target_compile_definitions(trx-client PRIVATE MAKER_USB_VENDOR_ID=${MAKER_USB_VENDOR_ID})
target_link_libraries(trx-client
  PUBLIC TRX-SELVASetup::TRX-SELVASetup
  PRIVATE client-shared PkgConfig::LIBPLIST PkgConfig::LIBSYSTEMD)
