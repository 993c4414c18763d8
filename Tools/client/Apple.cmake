add_library(trx-client STATIC)
# Only launchd has such events, and only a Mac has its interface.
target_sources(trx-client PRIVATE Apple/PlugEvent.mm)
target_compile_options(trx-client PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:-fno-objc-arc>)
target_link_libraries(trx-client
  PUBLIC TRX-SELVASetup::TRX-SELVASetup "-framework Foundation" "-framework IOKit"
  PRIVATE client-shared client-foundation)
