// Lists are kept as texts; an unusable file reads as an empty one.
#include "shell/settings.h"

#include <stdexcept>

#include "shared/code_page.h"

namespace tarrowin {

namespace {

constexpr qsizetype kLongestList = 10;
const QString kRecentFiles = QStringLiteral("recentFiles");
const QString kOutputDirectories = QStringLiteral("outputDirectories");
const QString kGeometry = QStringLiteral("windowGeometry");
const QString kCodePage = QStringLiteral("codePage");

}  // namespace

Settings::Settings(const QString& file) : file_(file, QSettings::IniFormat) {}

QStringList Settings::list(const QString& key) const {
  return file_.value(key).toStringList().mid(0, kLongestList);
}

void Settings::addToList(const QString& key, const QString& entry) {
  QStringList entries = list(key);
  entries.removeAll(entry);
  entries.prepend(entry);
  file_.setValue(key, entries.mid(0, kLongestList));
}

QStringList Settings::recentFiles() const { return list(kRecentFiles); }
void Settings::addRecentFile(const QString& path) { addToList(kRecentFiles, path); }
void Settings::forgetRecentFile(const QString& path) {
  QStringList entries = list(kRecentFiles);
  entries.removeAll(path);
  file_.setValue(kRecentFiles, entries);
}

QStringList Settings::recentOutputDirectories() const { return list(kOutputDirectories); }
void Settings::addOutputDirectory(const QString& path) { addToList(kOutputDirectories, path); }

QByteArray Settings::windowGeometry() const { return file_.value(kGeometry).toByteArray(); }
void Settings::setWindowGeometry(const QByteArray& geometry) {
  file_.setValue(kGeometry, geometry);
}

int Settings::codePage() const {
  const int number = file_.value(kCodePage, CodePage::kWestern).toInt();
  try {
    return CodePage(number).number();
  } catch (const std::invalid_argument&) {
    return CodePage::kWestern;
  }
}
void Settings::setCodePage(int number) { file_.setValue(kCodePage, number); }

}  // namespace tarrowin
