// What the window remembers from one run to the next, in an INI file in the user's configuration
// directory.
#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>

namespace tarrowin {

class Settings {
 public:
  // The file is made when something is remembered.
  explicit Settings(const QString& file);

  // The databases opened last, the newest first, ten at most.
  QStringList recentFiles() const;
  void addRecentFile(const QString& path);
  void forgetRecentFile(const QString& path);

  // The output directories used last, likewise.
  QStringList recentOutputDirectories() const;
  void addOutputDirectory(const QString& path);

  QByteArray windowGeometry() const;
  void setWindowGeometry(const QByteArray& geometry);

  // The number of the ANSI code page in which texts are kept; 1252 until another one is chosen.
  int codePage() const;
  void setCodePage(int number);

 private:
  QStringList list(const QString& key) const;
  void addToList(const QString& key, const QString& entry);

  QSettings file_;
};

}  // namespace tarrowin
