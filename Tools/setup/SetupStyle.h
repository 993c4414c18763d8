#pragma once

#include <QProxyStyle>

namespace setup {

/// The same look on every desktop, with lists that open below their field.
class SetupStyle : public QProxyStyle {
  Q_OBJECT

 public:
  SetupStyle();

  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *returned) const override;
};

}  // namespace setup
