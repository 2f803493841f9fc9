// Buttons and menu keys as tables.
#include "shell/main_toolbar.h"

#include <QAction>
#include <QActionGroup>
#include <QDir>
#include <QMenu>
#include <QToolButton>
#include <array>

#include "shell/icons.h"
#include "shell/named_widgets.h"

namespace tarrowin {

namespace {

constexpr int kPictureSize = 24;
constexpr const char* kOpenKey = "keyOpen";

struct MenuKeyRow {
  const char* key;
  const char* caption;
};
// clang-format off
constexpr std::array<MenuKeyRow, 7> kOpenMenu = {{
    {"keyMDBs",      "Access MDBs"},
    {"keyQueries",   "Queries"},
    {"keyForms",     "Forms"},
    {"keyReports",   "Reports"},
    {"keyMacros",    "Macros"},
    {"keyModules",   "Modules"},
    {"keyVBProject", "VB Project"},
}};

struct CodePageRow {
  int number;
  const char* caption;
};
constexpr std::array<CodePageRow, 10> kCodePages = {{
    {1252, "Western European (1252)"},
    {1250, "Central European (1250)"},
    {1251, "Cyrillic (1251)"},
    {1253, "Greek (1253)"},
    {1254, "Turkish (1254)"},
    {1255, "Hebrew (1255)"},
    {1256, "Arabic (1256)"},
    {1257, "Baltic (1257)"},
    {1258, "Vietnamese (1258)"},
    {874,  "Thai (874)"},
}};
// clang-format on

}  // namespace

MainToolbar::MainToolbar()
    : recentFiles_(new QMenu(tr("Recent Databases"), this)), codePages_(new QActionGroup(this)) {
  setObjectName(QStringLiteral("Toolbar1"));
  setWindowTitle(tr("Toolbar"));
  setMovable(false);
  setIconSize(QSize(kPictureSize, kPictureSize));
  setContextMenuPolicy(Qt::NoContextMenu);
  addOpenButton();
  addSeparator();
  addButton("keySupport", tr("Support"), tr("Tarrowin Support"));
  addButton("keyHelp", tr("Help"), tr("Tarrowin Help"));
  addSeparator();
  addButton("keyExit", tr("Exit"), tr("Exit Tarrowin"));
  showRecentFiles({});
}

void MainToolbar::addOpenButton() {
  auto* const menu = new QMenu(this);
  for (const MenuKeyRow& row : kOpenMenu) {
    QAction* const action = menu->addAction(iconOfKey(row.key), tr(row.caption));
    action->setObjectName(row.key);
    connect(action, &QAction::triggered, this, [this, key = row.key] { emit clicked(key); });
  }
  menu->addSeparator();
  menu->addMenu(recentFiles_);
  addCodePages(menu->addMenu(tr("Code Page (Next Start)")));

  auto* const button = new QToolButton;
  button->setObjectName(kOpenKey);
  button->setIcon(iconOfKey(kOpenKey));
  setToolTipAndName(button, tr("Open Access Database"));
  button->setMenu(menu);
  button->setPopupMode(QToolButton::MenuButtonPopup);
  button->setFocusPolicy(Qt::TabFocus);
  button->setShortcut(QKeySequence::Open);
  // The button itself does what stands first in its menu.
  connect(button, &QToolButton::clicked, this, [this] { emit clicked(kOpenMenu[0].key); });
  addWidget(button);
}

void MainToolbar::addCodePages(QMenu* menu) {
  for (const CodePageRow& row : kCodePages) {
    QAction* const action = menu->addAction(tr(row.caption));
    action->setCheckable(true);
    action->setData(row.number);
    codePages_->addAction(action);
    connect(action, &QAction::triggered, this,
            [this, number = row.number] { emit codePageChosen(number); });
  }
}

void MainToolbar::showCodePage(int number) {
  for (QAction* const action : codePages_->actions()) action->setChecked(action->data() == number);
}

void MainToolbar::addButton(const char* key, const QString& caption, const QString& toolTip) {
  QAction* const action = addAction(iconOfKey(key), caption);
  action->setObjectName(key);
  action->setToolTip(toolTip);
  connect(action, &QAction::triggered, this, [this, key] { emit clicked(key); });
  QWidget* const button = widgetForAction(action);
  button->setObjectName(key);
  button->setAccessibleName(toolTip);
  button->setFocusPolicy(Qt::TabFocus);
}

void MainToolbar::showRecentFiles(const QStringList& paths) {
  recentFiles_->clear();
  recentFiles_->setEnabled(!paths.isEmpty());
  for (const QString& path : paths) {
    // A "&" in a path is no mnemonic.
    QString caption = QDir::toNativeSeparators(path);
    caption.replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction* const action = recentFiles_->addAction(iconNamed("mdb"), caption);
    connect(action, &QAction::triggered, this, [this, path] { emit recentFileChosen(path); });
  }
}

}  // namespace tarrowin
