#pragma once

#include <QComboBox>
#include <optional>

namespace setup {

/// A closed list that opens below. What another program sets does not change it while it is open,
/// and the mouse wheel never does.
class SignalList : public QComboBox {
  Q_OBJECT

 public:
  explicit SignalList(const QStringList &choices, QWidget *parent = nullptr);

  /// Shows a choice, as soon as the list is closed; a number that is none reads "Unknown choice".
  void Show(int index);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  void showPopup() override;
  void hidePopup() override;

 Q_SIGNALS:
  void Chosen(int index);
  /// An entry of the open list is marked; -1 once it is closed.
  void Pointed(int index);

 protected:
  void paintEvent(QPaintEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;

 private:
  bool isOpen_ = false;
  std::optional<int> later_;
};

}  // namespace setup
