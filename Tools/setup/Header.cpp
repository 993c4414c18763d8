#include "Header.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include "Theme.h"
#include "Words.h"

namespace setup {
namespace {

constexpr double kDotRoom = 24;

std::vector<client::Mixer> MixersThat(const Look &look, bool areOpened) {
  std::vector<client::Mixer> mixers;
  for (const client::MixerResult &result : look.mixers) {
    if (result.IsOpened() == areOpened) mixers.push_back(result.mixer);
  }
  return mixers;
}

Health HealthOf(const Look &look) {
  if (!look.isConnected) return Health::kAway;
  const bool areAllOpened = MixersThat(look, false).empty();
  return areAllOpened && look.silent.empty() ? Health::kGood : Health::kBad;
}

}  // namespace

/// Words of the header, by what the mixers are like.
class HeaderWords {
  Q_DECLARE_TR_FUNCTIONS(HeaderWords)

 public:
  static QString Name(const SetupState &state) {
    const Look &look = state.LastLook();
    const QString model = QString::fromUtf8(state.Model().name.data());
    if (!look.isConnected) return tr("No mixer");
    const auto count = look.mixers.size();
    return count > 1 ? tr("%1 mixers  ·  %2").arg(count).arg(model) : model;
  }

  static QString Details(const SetupState &state) {
    const Look &look = state.LastLook();
    if (!look.isConnected) return tr("Looking for one on USB");
    if (!look.CanSend()) return tr("Connected, but cannot be opened");
    const QString silent = MixersAsText(look.silent);
    if (!look.silent.empty()) {
      return look.silent.size() < look.mixers.size() ? tr("Does not answer: %1").arg(silent)
                                                     : tr("Connected, but does not answer");
    }
    const std::vector<client::Mixer> closed = MixersThat(look, false);
    if (!closed.empty()) return tr("Cannot be opened: %1").arg(MixersAsText(closed));
    return look.mixers.size() > 1 ? Serials(look) : OneMixer(look);
  }

 private:
  static QString Serials(const Look &look) {
    return tr("Every setting goes to all of them: %1").arg(MixersAsText(MixersThat(look, true)));
  }

  static QString OneMixer(const Look &look) {
    QStringList parts{tr("Connected")};
    const std::string serial = look.mixers.empty() ? "" : look.mixers.front().mixer.serial;
    if (!serial.empty()) parts << tr("Serial number %1").arg(QString::fromStdString(serial));
    if (look.firmware) parts << tr("Firmware %1").arg(FirmwareAsText(*look.firmware));
    return parts.join("  ·  ");
  }
};

Header::Header(QWidget *parent)
    : QWidget(parent),
      name_(new QLabel(this)),
      details_(new QLabel(this)),
      profiles_(new ActionButton(tr("Pro&files"), this)),
      more_(new ActionButton("···", this)) {
  setObjectName("header");
  name_->setObjectName("mixerName");
  details_->setObjectName("mixerDetails");
  profiles_->setObjectName("profiles");
  more_->setObjectName("more");
  more_->setProperty("plain", true);
  more_->setAccessibleName(tr("More"));
  more_->setToolTip(tr("More"));
  more_->setShortcut(Qt::Key_F10);
  auto *texts = new QVBoxLayout;
  texts->setSpacing(0);
  texts->addWidget(name_);
  texts->addWidget(details_);
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Scaled(12));
  row->addSpacing(Scaled(kDotRoom));
  row->addLayout(texts);
  row->addStretch();
  row->addWidget(profiles_, 0, Qt::AlignVCenter);
  row->addWidget(more_, 0, Qt::AlignVCenter);
  name_->setFont(ScaledFont(1.5, QFont::Bold));
  details_->setForegroundRole(kQuietRole);
}

void Header::Refresh(const SetupState &state) {
  name_->setText(HeaderWords::Name(state));
  details_->setText(HeaderWords::Details(state));
  const Health health = HealthOf(state.LastLook());
  if (health == health_) return;
  health_ = health;
  details_->setForegroundRole(health == Health::kBad ? kWarningRole : kQuietRole);
  update();
}

void Header::ShowProfile(const QString &profile) {
  profiles_->setText(profile.isEmpty() ? tr("Pro&files") : QString(profile).replace('&', "&&"));
  profiles_->setAccessibleName(profile.isEmpty() ? tr("Profiles")
                                                 : tr("Profiles: %1").arg(profile));
  profiles_->updateGeometry();
}

void Header::paintEvent(QPaintEvent * /*event*/) {
  const Theme &theme = CurrentTheme();
  QColor colour = theme.away;
  if (health_ == Health::kGood) colour = theme.good;
  if (health_ == Health::kBad) colour = theme.bad;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  const double beside = ScaledReal(8);
  const QPointF middle(isMirrored ? width() - beside : beside,
                       name_->geometry().center().y() + 1.0);
  QColor halo = colour;
  halo.setAlphaF(0.3F);
  painter.setBrush(halo);
  painter.drawEllipse(middle, ScaledReal(8), ScaledReal(8));
  painter.setBrush(colour);
  painter.drawEllipse(middle, ScaledReal(5), ScaledReal(5));
}

}  // namespace setup
