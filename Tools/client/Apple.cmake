add_library(trx-client STATIC)
target_compile_options(trx-client PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:-fno-objc-arc>)
target_link_libraries(trx-client
  PUBLIC TRX-SELVASetup::TRX-SELVASetup "-framework Foundation"
  PRIVATE client-shared client-foundation)
