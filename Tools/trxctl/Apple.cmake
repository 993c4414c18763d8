add_executable(trxctl main.cpp)
target_compile_options(trxctl PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:-fno-objc-arc>)
target_link_libraries(trxctl PRIVATE trxctl-shared trxctl-foundation trx-client)
