// Filters, start folders, and the button for folders.
#include "shell/open_dialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include "shell/icons.h"

namespace tarrowin {

namespace {

constexpr const char* kDatabaseEnding = "*.mdb";

// What a database can come from besides an .mdb file.
QStringList otherSources() {
  return {QObject::tr("Recordings (*.access.json)"),
          QObject::tr("Exported Objects (*.bas *.cls *.form *.report *.frm *.rpt *.macro)"),
          QObject::tr("All Files (*)")};
}

// The folder button takes the place of a mode of its own: one dialog for files and for folders.
void addFolderButton(QFileDialog& dialog) {
  auto* const buttons = dialog.findChild<QDialogButtonBox*>();
  if (buttons == nullptr) return;
  auto* const button =
      buttons->addButton(QObject::tr("Open Export &Folder"), QDialogButtonBox::ActionRole);
  button->setObjectName(QStringLiteral("cmdOpenFolder"));
  button->setIcon(iconNamed("folder"));
  button->setAutoDefault(false);
  button->setToolTip(QObject::tr("Open the folder that is shown, which holds exported objects"));
  QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog] {
    dialog.setFileMode(QFileDialog::Directory);
    // Accepting as a file dialog would look at the name field.
    static_cast<QDialog&>(dialog).done(QDialog::Accepted);
  });
}

// A path of the machine that loads the output, which this one need not have: "C:\\Windows\\x.dll".
// Empty when the user typed none.
QString typedForeignPath(const QFileDialog& dialog) {
  static const QRegularExpression foreign(QStringLiteral(R"(^([A-Za-z]:\\|\\\\).*[^\\]$)"));
  const auto* const field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (field == nullptr || !foreign.match(field->text()).hasMatch()) return {};
  return field->text();
}

}  // namespace

QStringList nameFilters(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString words = parts[i];
    if (const qsizetype bracket = words.indexOf(QLatin1Char('(')); bracket >= 0)
      words.truncate(bracket);
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    filters.append(QStringLiteral("%1 (%2)").arg(words.trimmed(), patterns));
  }
  return filters;
}

QString askForFile(QWidget* parent, const OpenDialog& dialog, const PageText& text) {
  QFileDialog chooser(parent, text.shown(dialog.dialogTitle));
  // Files, folders and the extra button behave alike everywhere.
  chooser.setOption(QFileDialog::DontUseNativeDialog);
  const bool asksForDatabase = dialog.defaultExt == kDatabaseEnding;
  chooser.setFileMode(asksForDatabase ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  QStringList filters = nameFilters(text.shown(dialog.filter));
  if (asksForDatabase) filters += otherSources();
  chooser.setNameFilters(filters);
  const QFileInfo start(text.shown(dialog.initDir));
  if (start.isDir()) {
    chooser.setDirectory(start.absoluteFilePath());
  } else if (start.isFile()) {
    chooser.setDirectory(start.absolutePath());
  }
  if (asksForDatabase) {
    addFolderButton(chooser);
  } else {
    chooser.selectFile(text.shown(dialog.fileName));
  }
  if (chooser.exec() != QDialog::Accepted) return {};
  if (chooser.fileMode() == QFileDialog::Directory) return chooser.directory().absolutePath();
  if (const QString typed = typedForeignPath(chooser); !asksForDatabase && !typed.isEmpty())
    return typed;
  const QStringList chosen = chooser.selectedFiles();
  return chosen.isEmpty() ? QString() : chosen.first();
}

std::optional<QString> askForFolder(QWidget* parent, const QString& title,
                                    const QStringList& startFolders) {
  QFileDialog chooser(parent, title);
  chooser.setOption(QFileDialog::DontUseNativeDialog);
  chooser.setFileMode(QFileDialog::Directory);
  chooser.setOption(QFileDialog::ShowDirsOnly);
  for (const QString& folder : startFolders) {
    if (folder.isEmpty() || !QDir(folder).exists()) continue;
    chooser.setDirectory(folder);
    break;
  }
  if (chooser.exec() != QDialog::Accepted) return std::nullopt;
  const QStringList chosen = chooser.selectedFiles();
  return chosen.isEmpty() ? QString() : chosen.first();
}

}  // namespace tarrowin
