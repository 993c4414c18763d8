#include "ProfileMenu.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

namespace setup {
namespace {

constexpr char kEnding[] = ".json";

QString Documents() { return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation); }

}  // namespace

ProfileMenu::ProfileMenu(ProfileShelf &shelf, QWidget *parent) : QMenu(parent), shelf_(shelf) {
  setObjectName("profilesMenu");
  connect(this, &QMenu::aboutToShow, this, &ProfileMenu::Fill);
  connect(&shelf, &ProfileShelf::SaveWouldReplace, this, [this](const QString &name) {
    AskWhether(tr("There is a profile %1 already. Replace it?").arg(name), tr("&Replace"),
               [this, name] { shelf_.Save(name, client::OldFile::kIsReplaced); });
  });
  connect(&shelf, &ProfileShelf::ImportWouldReplace, this,
          [this](const QString &name, const QString &file) {
            AskWhether(tr("There is a profile %1 already. Replace it?").arg(name), tr("&Replace"),
                       [this, file] { shelf_.Import(file, client::OldFile::kIsReplaced); });
          });
}

void ProfileMenu::Fill() {
  clear();
  for (const QString &name : shelf_.Names()) {
    // An ampersand in a name is no mnemonic.
    QAction *load = addAction(QString(name).replace('&', "&&"));
    load->setObjectName("load");
    load->setData(name);
    load->setCheckable(true);
    load->setChecked(name == shelf_.Current() && !shelf_.IsChanged());
    connect(load, &QAction::triggered, this, [this, name] { shelf_.Load(name); });
  }
  if (shelf_.Names().isEmpty()) addAction(tr("No profiles yet"))->setEnabled(false);
  addSeparator();
  QAction *save = addAction(tr("&Save as …"), this, &ProfileMenu::AskAndSave);
  save->setObjectName("saveAs");
  // Only shown here; the window has the key.
  save->setText(save->text() + '\t' +
                QKeySequence(QKeySequence::Save).toString(QKeySequence::NativeText));
  addAction(tr("&Import …"), this, &ProfileMenu::AskAndImport)->setObjectName("import");
  if (shelf_.Names().isEmpty()) return;
  AddSubmenu(tr("&Rename"), "renameMenu", [this](const QString &name) { AskAndRename(name); });
  AddSubmenu(tr("&Export"), "exportMenu", [this](const QString &name) { AskAndExport(name); });
  AddSubmenu(tr("&Delete"), "deleteMenu", [this](const QString &name) { AskAndDelete(name); });
}

void ProfileMenu::AddSubmenu(const QString &title, const QString &name,
                             const std::function<void(const QString &)> &function) {
  QMenu *menu = addMenu(title);
  menu->setObjectName(name);
  for (const QString &profile : shelf_.Names()) {
    connect(menu->addAction(QString(profile).replace('&', "&&") + " …"), &QAction::triggered, this,
            [function, profile] { function(profile); });
  }
}

void ProfileMenu::AskName(const QString &title, const QString &name,
                          const std::function<void(const QString &)> &function) {
  auto *dialog = new QInputDialog(parentWidget()->window());
  dialog->setObjectName("askName");
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(title);
  dialog->setLabelText(tr("Name of the profile:"));
  dialog->setTextValue(name);
  connect(dialog, &QInputDialog::textValueSelected, this, function);
  dialog->open();
}

void ProfileMenu::AskWhether(const QString &question, const QString &yes,
                             const std::function<void()> &function) {
  auto *box = new QMessageBox(QMessageBox::Question, QString(), question, QMessageBox::Cancel,
                              parentWidget()->window());
  box->setObjectName("askWhether");
  box->setAttribute(Qt::WA_DeleteOnClose);
  QPushButton *button = box->addButton(yes, QMessageBox::AcceptRole);
  connect(button, &QPushButton::clicked, this, function);
  box->open();
}

void ProfileMenu::AskAndSave() {
  AskName(tr("Save profile"), shelf_.Current(),
          [this](const QString &name) { shelf_.Save(name, client::OldFile::kIsKept); });
}

void ProfileMenu::AskAndRename(const QString &name) {
  AskName(tr("Rename profile"), name, [this, name](const QString &newName) {
    if (newName.trimmed() != name) shelf_.Rename(name, newName);
  });
}

void ProfileMenu::AskAndDelete(const QString &name) {
  AskWhether(tr("Delete the profile %1?").arg(name), tr("&Delete"),
             [this, name] { shelf_.Delete(name); });
}

void ProfileMenu::AskAndExport(const QString &name) {
  auto *dialog = new QFileDialog(parentWidget()->window(), tr("Export profile"), Documents(),
                                 tr("Profiles (*.json)"));
  dialog->setObjectName("askExportFile");
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(kEnding + 1);
  dialog->selectFile(QString(name).replace('/', '-') + kEnding);
  connect(dialog, &QFileDialog::fileSelected, this,
          [this, name](const QString &file) { shelf_.Export(name, file); });
  dialog->open();
}

void ProfileMenu::AskAndImport() {
  auto *dialog = new QFileDialog(parentWidget()->window(), tr("Import profile"), Documents(),
                                 tr("Profiles (*.json)"));
  dialog->setObjectName("askImportFile");
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setFileMode(QFileDialog::ExistingFile);
  connect(dialog, &QFileDialog::fileSelected, this,
          [this](const QString &file) { shelf_.Import(file, client::OldFile::kIsKept); });
  dialog->open();
}

}  // namespace setup
