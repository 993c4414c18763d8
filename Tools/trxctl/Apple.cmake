add_executable(trxctl main.cpp)
target_compile_options(trxctl PRIVATE $<$<COMPILE_LANGUAGE:OBJCXX>:-fno-objc-arc>)
target_link_libraries(trxctl PRIVATE trxctl-shared trxctl-foundation trx-client)

# launchd starts it when a mixer is plugged in.
math(EXPR vendor_decimal "${MAKER_USB_VENDOR_ID}")
configure_file(${PROJECT_SOURCE_DIR}/packaging/launchd/com.orvikaudio.trx-reapply.plist.in com.orvikaudio.trx-reapply.plist @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/com.orvikaudio.trx-reapply.plist
  DESTINATION /Library/LaunchAgents COMPONENT tools)
