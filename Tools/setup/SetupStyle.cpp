#include "SetupStyle.h"

namespace setup {

SetupStyle::SetupStyle() : QProxyStyle("Fusion") {}

int SetupStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returned) const {
  if (hint == SH_ComboBox_Popup) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace setup
