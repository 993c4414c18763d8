find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)
target_sources(trx-setup-parts PRIVATE
  ChangeListener.h
  DesktopAppearance.h
  Linux/ChangeListener.cpp
  Linux/DesktopAppearance.cpp
  Linux/PortalReader.cpp)
target_link_libraries(trx-setup-parts PRIVATE Qt6::DBus)
