#include "SetupStyle.h"

#include "FocusRing.h"

namespace setup {

SetupStyle::SetupStyle() : QProxyStyle("Fusion") {}

int SetupStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returned) const {
  if (hint == SH_ComboBox_Popup) return 0;
  if (hint == SH_UnderlineShortcut) return MnemonicFlag() == Qt::TextShowMnemonic ? 1 : 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace setup
