// The list, and what can be done with it.
#include "shell/written_files_panel.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>
#include <QVBoxLayout>

#include "shell/icons.h"
#include "shell/named_widgets.h"

namespace tarrowin {

namespace {

QPushButton* makeButton(const QString& name, const QString& caption, std::string_view picture) {
  auto* const button = new QPushButton(iconNamed(picture), caption);
  button->setObjectName(name);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

WrittenFilesPanel::WrittenFilesPanel()
    : summary_(makeLabel(QStringLiteral("lblWritten"))),
      list_(new QListView),
      model_(new QStringListModel(this)) {
  setObjectName(QStringLiteral("writtenFiles"));
  setWindowTitle(tr("Files of the Last Conversion"));
  setFeatures(QDockWidget::DockWidgetClosable);
  list_->setObjectName(QStringLiteral("lstWritten"));
  list_->setAccessibleName(windowTitle());
  list_->setModel(model_);
  list_->setUniformItemSizes(true);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setMinimumHeight(60);
  connect(list_, &QListView::doubleClicked, this,
          [this](const QModelIndex& index) { emit fileAsked(paths_.value(index.row())); });

  QPushButton* const folder =
      makeButton(QStringLiteral("cmdOpenFolder"), tr("Open Fo&lder"), "folder");
  connect(folder, &QPushButton::clicked, this, [this] { emit folderAsked(currentFolder()); });
  QPushButton* const copy = makeButton(QStringLiteral("cmdCopyPaths"), tr("Cop&y Paths"), "copy");
  connect(copy, &QPushButton::clicked, this, &WrittenFilesPanel::copyPaths);

  auto* const content = new QWidget;
  auto* const rows = new QVBoxLayout(content);
  auto* const bar = new QHBoxLayout;
  bar->addWidget(summary_, 1);
  bar->addWidget(copy);
  bar->addWidget(folder);
  rows->addLayout(bar);
  rows->addWidget(list_, 1);
  setWidget(content);
  hide();
}

void WrittenFilesPanel::showFiles(const QStringList& paths) {
  paths_ = paths;
  QStringList names;
  for (const QString& path : paths) names.append(QFileInfo(path).fileName());
  model_->setStringList(names);
  summary_->setText(
      tr("%n file(s) in %1", nullptr, static_cast<int>(paths.size()))
          .replace(QLatin1String("(s)"), paths.size() == 1 ? QString() : QStringLiteral("s"))
          .arg(currentFolder()));
  setVisible(!paths.isEmpty());
}

// Of the chosen file, or of the first one: a batch writes into one directory.
QString WrittenFilesPanel::currentFolder() const {
  const int row = list_->currentIndex().isValid() ? list_->currentIndex().row() : 0;
  return QFileInfo(paths_.value(row)).absolutePath();
}

void WrittenFilesPanel::copyPaths() const {
  QGuiApplication::clipboard()->setText(paths_.join(QLatin1Char('\n')));
}

}  // namespace tarrowin
