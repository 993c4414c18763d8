#pragma once

#include <QObject>
#include <memory>

namespace setup {

/// How the desktop wants programs to look.
struct Appearance {
  bool isDark = false;
  bool isHighContrast = false;

  bool operator==(const Appearance &) const = default;
};

/// Follows the desktop's wishes. Qt does not tell them itself before 6.5.
class DesktopAppearance : public QObject {
  Q_OBJECT

 public:
  DesktopAppearance();
  ~DesktopAppearance() override;

  /// Begins to ask; the answer comes with Changed, later.
  void Start();

 Q_SIGNALS:
  void Changed(const setup::Appearance &appearance);

 private:
  /// What the platform needs for it.
  struct Machinery;
  std::unique_ptr<Machinery> machinery_;
};

}  // namespace setup
