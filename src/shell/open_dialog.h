// The common dialog for opening a file, and the dialog for a folder.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "core/user.h"
#include "shell/page_text.h"

class QWidget;

namespace tarrowin {

// Shows the dialog as its properties say; the chosen path, empty when cancelled. Where a database
// is asked for it also offers recordings, exported files, and a button that takes the folder which
// is shown, for a folder of exports.
QString askForFile(QWidget* parent, const OpenDialog& dialog, const PageText& text);

// The chosen folder; nothing when cancelled. It starts in the first of the folders that exists.
std::optional<QString> askForFolder(QWidget* parent, const QString& title,
                                    const QStringList& startFolders);

// "System DLL Files (*.dll)|*.dll" as the filters of a file dialog.
QStringList nameFilters(const QString& filter);

}  // namespace tarrowin
