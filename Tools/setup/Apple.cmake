target_sources(trx-setup-parts PRIVATE
  ChangeListener.h
  DesktopAppearance.h
  Apple/ChangeListener.cpp
  Apple/DesktopAppearance.cpp)
set_target_properties(trx-setup PROPERTIES MACOSX_BUNDLE ON)
