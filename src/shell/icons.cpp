// Keys and pictures.
#include "shell/icons.h"

#include <QCoreApplication>
#include <QHash>
#include <QPointer>
#include <QString>
#include <array>

// The pictures stand in a library, whose resources do not load themselves; the macro wants to be
// used outside of any namespace.
static void loadPictures() { Q_INIT_RESOURCE(resources); }

namespace tarrowin {

namespace {

struct KeyRow {
  std::string_view key;
  std::string_view picture;
};
// clang-format off
constexpr std::array<KeyRow, 16> kKeys = {{
    {"keyQuery",     "query"},
    {"keyForm",      "form"},
    {"keyReport",    "report"},
    {"keyMacro",     "macro"},
    {"keyModule",    "module"},
    {"keyOpen",      "open"},
    {"keyMDBs",      "mdb"},
    {"keyQueries",   "query"},
    {"keyForms",     "form"},
    {"keyReports",   "report"},
    {"keyMacros",    "macro"},
    {"keyModules",   "module"},
    {"keyVBProject", "vbproject"},
    {"keySupport",   "support"},
    {"keyHelp",      "help"},
    {"keyExit",      "exit"},
}};
// clang-format on

// The pictures live as long as the application: what draws them goes with it.
struct IconCache : QObject {
  QHash<QString, QIcon> icons;

  static IconCache& instance() {
    static QPointer<IconCache> cache;
    if (cache.isNull()) {
      loadPictures();
      cache = new IconCache;
      cache->setParent(QCoreApplication::instance());
    }
    return *cache;
  }
};

}  // namespace

QIcon iconNamed(std::string_view name) {
  QHash<QString, QIcon>& icons = IconCache::instance().icons;
  const QString path =
      QStringLiteral(":/icons/%1.svg")
          .arg(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
  QIcon& icon = icons[path];
  if (icon.isNull()) icon = QIcon(path);
  return icon;
}

QIcon iconOfKey(std::string_view key) {
  for (const KeyRow& row : kKeys) {
    if (row.key == key) return iconNamed(row.picture);
  }
  return {};
}

}  // namespace tarrowin
