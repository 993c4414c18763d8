#include "VersionsDialog.h"

#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <array>

#include "ActionButton.h"
#include "Card.h"
#include "Words.h"
#include "client/Versions.h"

namespace setup {
namespace {

/// The versions that are read from files.
struct Versions {
  std::optional<std::string> package;
  std::optional<std::string> application;
  std::optional<std::string> library;
};

Versions ReadVersions(const client::Model &model) {
  return {client::VersionOf(client::InstalledPiece::kPackage, model),
          client::VersionOf(client::InstalledPiece::kSetupApplication, model),
          client::VersionOf(client::InstalledPiece::kLibrary, model)};
}

QString VersionAsText(const std::optional<std::string> &version) {
  return version ? QString::fromStdString(*version) : VersionsDialog::tr("not installed");
}

}  // namespace

VersionsDialog::VersionsDialog(SetupState &state, QWidget *parent)
    : QDialog(parent), lines_(new QFormLayout) {
  setObjectName("versions");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("About and versions"));
  auto *name = new QLabel(tr("TRX Setup"), this);
  name->setFont(ScaledFont(1.5, QFont::Bold));
  auto *about = new QuietLabel(tr("Sets the USB DJ mixers of the TRX-SELVA family. A choice is "
                                  "sent to every connected mixer at once and kept on this "
                                  "computer."),
                               this);
  about->setWordWrap(true);
  auto *close = new ActionButton(tr("C&lose"), this);
  close->setObjectName("closeVersions");
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  auto *column = new QVBoxLayout(this);
  const int margin = Scaled(22);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(Scaled(12));
  column->addWidget(name);
  column->addWidget(about);
  column->addLayout(lines_);
  column->addStretch();
  column->addWidget(close, 0, Qt::AlignTrailing);
  setMinimumWidth(Scaled(400));
  lines_->setHorizontalSpacing(Scaled(24));
  Add(tr("This program"), TRX_SETUP_VERSION, "programVersion");
  const std::optional<uint32_t> firmware = state.LastLook().firmware;
  if (firmware) Add(tr("Firmware of the mixer"), FirmwareAsText(*firmware), "firmwareVersion");
  const QPointer<VersionsDialog> self(this);
  state.Jobs().Run(
      "versions", &state, [model = &state.Model()] { return ReadVersions(*model); },
      [self](const Versions &versions) {
        if (!self) return;
        self->Add(tr("Package"), VersionAsText(versions.package), "packageVersion");
        self->Add(tr("Setup application"), VersionAsText(versions.application),
                  "applicationVersion");
        self->Add(tr("Library"), VersionAsText(versions.library), "libraryVersion");
      });
}

void VersionsDialog::Add(const QString &what, const QString &version, const QString &name) {
  auto *value = new QLabel(version, this);
  value->setObjectName(name);
  value->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lines_->addRow(what, value);
}

}  // namespace setup
