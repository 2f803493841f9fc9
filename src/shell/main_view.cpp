// The window's frame, its tabs, and the events that concern the whole window.
#include "shell/main_view.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QStringListModel>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "shell/how_to_page.h"
#include "shell/icons.h"
#include "shell/main_toolbar.h"
#include "shell/named_widgets.h"
#include "shell/option_pages.h"
#include "shell/written_files_panel.h"

namespace tarrowin {

namespace {

constexpr QSize kDesignSize(960, 640);

// A label that may be cut, so that a long text never widens the window.
QLabel* makeElasticLabel(const QString& name) {
  QLabel* const label = makeLabel(name);
  QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  policy.setRetainSizeWhenHidden(true);
  label->setSizePolicy(policy);
  return label;
}

// "ProgressBar1(0)" as name and index.
ControlName controlNamed(const QString& objectName) {
  static const QRegularExpression element(QStringLiteral(R"(^(\w+)\((\d+)\)$)"));
  const QRegularExpressionMatch match = element.match(objectName);
  if (!match.hasMatch()) return {objectName, 0};
  return {match.captured(1), match.captured(2).toInt()};
}

// The one local file or folder that is dragged, if it is one.
QString draggedPath(const QMimeData* data) {
  const QList<QUrl> urls = data->urls();
  return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

}  // namespace

MainView::MainView(const PageText& text)
    : text_(text),
      toolbar_(new MainToolbar),
      writtenFiles_(new WrittenFilesPanel),
      tabSelect_(new QTabWidget),
      howTo_(new HowToPage(text)) {
  setObjectName(QStringLiteral("frmTarrowin"));
  setWindowIcon(iconNamed("app"));
  setAcceptDrops(true);
  addToolBar(toolbar_);
  connect(toolbar_, &MainToolbar::clicked, this, &MainView::toolbarClicked);

  auto* const fraWin = new QFrame;
  fraWin->setObjectName(QStringLiteral("fraWin"));
  auto* const rows = new QVBoxLayout(fraWin);
  rows->addWidget(makeHead());
  rows->addWidget(makeOutputRow());
  tabSelect_->setObjectName(QStringLiteral("tabSelect"));
  addPages();
  rows->addWidget(tabSelect_, 1);
  rows->addWidget(makeProgressRow());
  setCentralWidget(fraWin);
  addDockWidget(Qt::BottomDockWidgetArea, writtenFiles_);

  connect(tabSelect_, &QTabWidget::currentChanged, this, &MainView::tabChosen);
  auto* const help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this, [this] { askForHelp(focusWidget(), std::nullopt); });
  for (QAbstractButton* const button : findChildren<QAbstractButton*>())
    button->installEventFilter(this);
  resize(kDesignSize);
  tabSelect_->setFocus();
}

QWidget* MainView::makeHead() {
  auto* const head = new QWidget;
  auto* const columns = new QHBoxLayout(head);
  columns->setContentsMargins(0, 0, 0, 0);
  QToolButton* const cmdOpen =
      makePictureButton(QStringLiteral("cmdOpen"), {}, "open", tr("Open Access Database"));
  cmdOpen->setToolButtonStyle(Qt::ToolButtonIconOnly);
  connect(cmdOpen, &QToolButton::clicked, this,
          [this] { emit buttonClicked(QStringLiteral("cmdOpen")); });
  columns->addWidget(cmdOpen);
  auto* const labels = new QVBoxLayout;
  QLabel* const prompt =
      makeLabel(QStringLiteral("lblOpenMDB"),
                tr("Open a Microsoft Access 97, 2000, 2002 or 2003 database (.MDB) to convert to "
                   "Visual Basic"));
  prompt->setWordWrap(true);
  labels->addWidget(prompt);
  lblCurDb_ = makeElasticLabel(QStringLiteral("lblCurDb"));
  lblCurDb_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lblCurDb_->setContextMenuPolicy(Qt::NoContextMenu);
  labels->addWidget(lblCurDb_);
  columns->addLayout(labels, 1);
  return head;
}

QWidget* MainView::makeOutputRow() {
  auto* const row = new QWidget;
  auto* const columns = new QHBoxLayout(row);
  columns->setContentsMargins(0, 0, 0, 0);
  QLabel* const label = makeLabel(QStringLiteral("lblSaveIn"), tr("Save &in:"));
  txtCurDir_ = new QLineEdit;
  txtCurDir_->setObjectName(QStringLiteral("txtCurDir"));
  txtCurDir_->setAccessibleName(tr("Save in"));
  txtCurDir_->setContextMenuPolicy(Qt::NoContextMenu);
  label->setBuddy(txtCurDir_);
  auto* const directories = new QCompleter(new QStringListModel(this), this);
  directories->setFilterMode(Qt::MatchContains);
  txtCurDir_->setCompleter(directories);
  cmdBrowse_ = new QPushButton(iconNamed("browse"), tr("&Browse..."));
  cmdBrowse_->setObjectName(QStringLiteral("cmdBrowse"));
  connect(cmdBrowse_, &QPushButton::clicked, this,
          [this] { emit buttonClicked(QStringLiteral("cmdBrowse")); });
  columns->addWidget(label);
  columns->addWidget(txtCurDir_, 1);
  columns->addWidget(cmdBrowse_);
  return row;
}

QWidget* MainView::makeProgressRow() {
  auto* const row = new QWidget;
  auto* const columns = new QHBoxLayout(row);
  columns->setContentsMargins(0, 0, 0, 0);
  lblConverting_ = makeLabel(QStringLiteral("lblConverting"), tr("Converting:"));
  lblPct_ = makeElasticLabel(QStringLiteral("lblPct"));
  lblPercent_ = makeLabel(QStringLiteral("lblPercent"));
  columns->addWidget(lblConverting_);
  columns->addWidget(lblPct_, 1);
  columns->addWidget(lblPercent_);
  return row;
}

void MainView::addPages() {
  pages_ = {new QueriesPage(text_),
            new FormsPage(text_),
            new ReportsPage(text_),
            new ObjectPage(kObjectPages[indexOf(ObjectList::kMacros)], text_),
            new ObjectPage(kObjectPages[indexOf(ObjectList::kModules)], text_),
            new ProjectPage(text_)};
  for (std::size_t i = 0; i < pages_.size(); ++i) {
    tabSelect_->addTab(pages_[i], iconOfKey(kObjectPages[i].icon), tr(kObjectPages[i].caption));
    connect(pages_[i], &ObjectPage::clicked, this, &MainView::buttonClicked);
    connect(pages_[i], &ObjectPage::doubleClicked, this, &MainView::listDoubleClicked);
  }
  tabSelect_->addTab(howTo_, iconOfKey("keyHelp"), tr(" &How to"));
  connect(howTo_, &HowToPage::clicked, this,
          [this](const QString& button) { emit buttonClicked(button); });
}

void MainView::show(const MainWindow& window) {
  setWindowTitle(text_.shown(window.caption));
  {
    // The user did not turn to the tab.
    const QSignalBlocker blocker(tabSelect_);
    tabSelect_->setCurrentIndex(window.tabSelect);
  }
  const QString directory = text_.shown(window.txtCurDir);
  if (txtCurDir_->text() != directory) txtCurDir_->setText(directory);
  cmdBrowse_->setEnabled(window.cmdBrowse.enabled);
  setToolTipAndName(cmdBrowse_, text_.shown(window.cmdBrowse.toolTip));
  lblCurDb_->setText(text_.shown(window.lblCurDb.caption));
  lblCurDb_->setToolTip(lblCurDb_->text());
  lblCurDb_->setVisible(window.lblCurDb.visible);
  lblPct_->setText(text_.shown(window.lblPct.caption));
  lblPct_->setVisible(window.lblPct.visible);
  lblConverting_->setVisible(window.lblPct.visible && !window.lblPct.caption.empty());
  lblPercent_->setText(text_.shown(window.lblPercent.caption));
  lblPercent_->setVisible(window.lblPercent.visible);
  for (ObjectPage* const page : pages_) page->show(window);
  howTo_->show(window);
}

void MainView::showItems(const MainWindow& window) {
  for (ObjectPage* const page : pages_) page->showItems(window);
}

void MainView::giveFocus(const std::string& control) {
  if (control.empty()) return;
  if (auto* const widget = findChild<QWidget*>(QString::fromStdString(control))) widget->setFocus();
}

void MainView::read(MainWindow& window) const {
  window.txtCurDir = text_.entered(txtCurDir_->text());
  for (const ObjectPage* const page : pages_) page->read(window);
}

void MainView::offerDirectories(const QStringList& directories) {
  static_cast<QStringListModel*>(txtCurDir_->completer()->model())->setStringList(directories);
}

std::vector<ControlName> MainView::controlsAround(const QWidget* widget,
                                                  const std::optional<QPoint>& position) const {
  std::vector<ControlName> controls;
  for (; widget != nullptr && widget != this; widget = widget->parentWidget()) {
    if (widget->objectName().isEmpty()) continue;
    ControlName control = controlNamed(widget->objectName());
    if (widget == tabSelect_) {
      const QTabBar* const bar = tabSelect_->tabBar();
      control.index =
          position ? bar->tabAt(bar->mapFromGlobal(*position)) : tabSelect_->currentIndex();
    }
    controls.push_back(std::move(control));
  }
  return controls;
}

void MainView::askForHelp(const QWidget* widget, const std::optional<QPoint>& position) {
  if (widget == nullptr) return;
  emit helpAsked(controlsAround(widget, position));
}

bool MainView::eventFilter(QObject* watched, QEvent* event) {
  const auto* const widget = qobject_cast<QWidget*>(watched);
  if (event->type() != QEvent::ContextMenu || widget == nullptr || widget->isEnabled())
    return QMainWindow::eventFilter(watched, event);
  askForHelp(widget, static_cast<QContextMenuEvent*>(event)->globalPos());
  return true;
}

void MainView::contextMenuEvent(QContextMenuEvent* event) {
  if (event->reason() == QContextMenuEvent::Keyboard) {
    askForHelp(focusWidget(), std::nullopt);
  } else {
    askForHelp(childAt(mapFromGlobal(event->globalPos())), event->globalPos());
  }
  event->accept();
}

void MainView::closeEvent(QCloseEvent* event) {
  bool refused = false;
  emit closing(refused);
  event->setAccepted(!refused);
}

void MainView::dragEnterEvent(QDragEnterEvent* event) {
  if (!draggedPath(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainView::dropEvent(QDropEvent* event) {
  const QString path = draggedPath(event->mimeData());
  if (path.isEmpty()) return;
  event->acceptProposedAction();
  emit sourceDropped(path);
}

}  // namespace tarrowin
