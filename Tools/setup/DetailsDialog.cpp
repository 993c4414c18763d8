#include "DetailsDialog.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QScrollArea>
#include <QTextDocumentFragment>

#include "ActionButton.h"
#include "CheckWords.h"
#include "Theme.h"

namespace setup {
namespace {

QString LineFor(const client::Check &check) {
  const Theme &theme = CurrentTheme();
  const QString sign = check.IsGood() ? "✓" : "✕";
  const QColor colour = check.IsGood() ? theme.good : theme.bad;
  QString line =
      QString("<p><span style='color:%1'><b>%2</b></span> <b>%3:</b> %4")
          .arg(colour.name(), sign, PartAsText(check.part), CheckAsText(check).toHtmlEscaped());
  if (!check.IsGood()) {
    const ProblemWords words = ProblemAsText(check);
    line += "<br>" + words.text.toHtmlEscaped();
    if (!words.command.isEmpty()) line += "<br><tt>" + words.command.toHtmlEscaped() + "</tt>";
  }
  return line + "</p>";
}

}  // namespace

DetailsDialog::DetailsDialog(SetupState &state, QWidget *parent)
    : QDialog(parent),
      state_(state),
      list_(new QLabel(this)),
      again_(new ActionButton(tr("&Look again"), this)),
      copy_(new ActionButton(tr("&Copy"), this)) {
  setObjectName("details");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("What was checked"));
  list_->setObjectName("detailsText");
  list_->setWordWrap(true);
  list_->setTextFormat(Qt::RichText);
  list_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  list_->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  list_->setMargin(Scaled(12));
  again_->setObjectName("lookAgain");
  copy_->setObjectName("copyDetails");
  auto *scroll = new QScrollArea(this);
  scroll->setWidget(list_);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  auto *close = new ActionButton(tr("C&lose"), this);
  close->setObjectName("closeDetails");
  auto *buttons = new QHBoxLayout;
  buttons->addWidget(again_);
  buttons->addWidget(copy_);
  buttons->addStretch();
  buttons->addWidget(close);
  auto *column = new QVBoxLayout(this);
  column->addWidget(scroll, 1);
  column->addLayout(buttons);
  resize(Scaled(560), Scaled(460));
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  connect(again_, &QPushButton::clicked, this, &DetailsDialog::Check);
  connect(copy_, &QPushButton::clicked, this, [this] {
    QGuiApplication::clipboard()->setText(
        QTextDocumentFragment::fromHtml(list_->text()).toPlainText());
  });
  Check();
}

void DetailsDialog::Check() {
  list_->setText(tr("Looking …"));
  again_->setEnabled(false);
  const QPointer<DetailsDialog> self(this);
  state_.Jobs().Run(
      "details", &state_, [model = &state_.Model()] { return client::Diagnose({model}); },
      [self](const std::vector<client::Check> &checks) {
        if (self) self->Show(checks);
      });
}

void DetailsDialog::Show(const std::vector<client::Check> &checks) {
  QString text;
  for (const client::Check &check : checks) text += LineFor(check);
  list_->setText(text);
  again_->setEnabled(true);
}

}  // namespace setup
