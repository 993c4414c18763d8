#include "TroubleCard.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>

#include "Card.h"
#include "CheckWords.h"
#include "Theme.h"

namespace setup {
namespace {

/// The checks that tell the user something: what was found up to the first problem.
std::vector<client::Check> ToldChecks(const std::vector<client::Check> &checks) {
  std::vector<client::Check> told;
  for (const client::Check &check : checks) {
    const bool isNews = check.part != client::CheckedPart::kNode || !check.IsGood();
    const bool isEmpty = check.part == client::CheckedPart::kMaker && check.names.empty();
    if (isNews && !isEmpty) told.push_back(check);
    if (!check.IsGood()) break;
  }
  return told;
}

/// A check with a sign before it.
class CheckLine : public QWidget {
 public:
  CheckLine(const client::Check &check, QWidget *parent) : QWidget(parent) {
    const Theme &theme = CurrentTheme();
    auto *sign = new QLabel(check.IsGood() ? "✓" : "✕", this);
    QPalette colours = sign->palette();
    colours.setColor(QPalette::WindowText, check.IsGood() ? theme.good : theme.bad);
    sign->setPalette(colours);
    sign->setFont(ScaledFont(1, QFont::Bold));
    sign->setAccessibleName(check.IsGood() ? TroubleCard::tr("good") : TroubleCard::tr("problem"));
    auto *text = new QLabel(CheckAsText(check), this);
    text->setWordWrap(true);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(sign, 0, Qt::AlignTop);
    row->addWidget(text, 1);
  }
};

}  // namespace

TroubleCard::TroubleCard(QWidget *parent)
    : QWidget(parent),
      title_(new QLabel(this)),
      text_(new QuietLabel({}, this)),
      checks_(new QVBoxLayout),
      command_(new QLabel(this)),
      copy_(new ActionButton(tr("&Copy command"), this)),
      details_(new ActionButton(tr("Show &details"), this)) {
  setObjectName("trouble");
  title_->setObjectName("troubleTitle");
  text_->setObjectName("troubleText");
  command_->setObjectName("troubleCommand");
  copy_->setObjectName("copyCommand");
  details_->setObjectName("showDetails");
  for (QLabel *label : {title_, text_, command_}) label->setWordWrap(true);
  command_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto *buttons = new QHBoxLayout;
  buttons->setSpacing(Scaled(10));
  buttons->addWidget(copy_);
  buttons->addWidget(details_);
  buttons->addStretch();
  auto *column = new QVBoxLayout(this);
  const int margin = Scaled(22);
  column->setContentsMargins(margin, Scaled(18), margin, Scaled(18));
  column->setSpacing(Scaled(9));
  column->addWidget(title_);
  column->addWidget(text_);
  column->addLayout(checks_);
  column->addWidget(command_);
  column->addLayout(buttons);
  connect(copy_, &QPushButton::clicked, this, [this] {
    QGuiApplication::clipboard()->setText(command_->text());
    Q_EMIT Told(tr("The command is copied."));
  });
  connect(details_, &QPushButton::clicked, this, &TroubleCard::DetailsWanted);
  title_->setFont(ScaledFont(1.15, QFont::DemiBold));
  QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  fixed.setPointSizeF(ScaledFont(0.85).pointSizeF());
  command_->setFont(fixed);
  hide();
}

void TroubleCard::Refresh(const SetupState &state) {
  const Look &look = state.LastLook();
  const client::Check *problem = look.CanSend() ? nullptr : look.Problem();
  setVisible(problem != nullptr);
  if (problem == nullptr) return;
  const ProblemWords words = ProblemAsText(*problem);
  title_->setText(words.title);
  text_->setText(problem->finding == client::Finding::kNoMixer && state.IsAutoApplyWorking()
                     ? tr("Connect the mixer by USB and switch it on. What you choose meanwhile is "
                          "kept, and sent as soon as it is there.")
                     : words.text);
  ShowChecks(look.checks);
  command_->setText(words.command);
  command_->setVisible(!words.command.isEmpty());
  copy_->setVisible(!words.command.isEmpty());
}

void TroubleCard::ShowChecks(const std::vector<client::Check> &checks) {
  while (QLayoutItem *item = checks_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  for (const client::Check &check : ToldChecks(checks)) {
    checks_->addWidget(new CheckLine(check, this));
  }
}

void TroubleCard::paintEvent(QPaintEvent * /*event*/) {
  const Theme &theme = CurrentTheme();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(theme.isDark || theme.isHighContrast ? theme.cardBorder : theme.shadow, 1));
  painter.setBrush(theme.card);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), ScaledReal(12),
                          ScaledReal(12));
}

}  // namespace setup
