// Events in, paint out.
#include "shell/shell.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QTimer>
#include <QUrl>
#include <exception>
#include <utility>

#include "core/main_object.h"
#include "core/program_exit.h"
#include "core/window_events.h"
#include "help/help_topics.h"
#include "help/how_to.h"
#include "shell/help_balloon.h"
#include "shell/input_guard.h"
#include "shell/main_toolbar.h"
#include "shell/message_box.h"
#include "shell/notice.h"
#include "shell/open_dialog.h"
#include "shell/preview_window.h"
#include "shell/splash.h"
#include "shell/written_files_panel.h"

namespace tarrowin {

namespace {

constexpr int kHourglassPointer = 11;

// While a dialog is up the pointer is an arrow.
class PointerPause {
 public:
  explicit PointerPause(bool hourglass) : hourglass_(hourglass) {
    if (hourglass_) QGuiApplication::restoreOverrideCursor();
  }
  ~PointerPause() {
    if (hourglass_) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  }
  PointerPause(const PointerPause&) = delete;
  PointerPause& operator=(const PointerPause&) = delete;

 private:
  bool hourglass_;
};

RunEnvironment withFiles(RunEnvironment environment, std::shared_ptr<FileSystem> files) {
  environment.fileSystem = std::move(files);
  return environment;
}

}  // namespace

Shell::Shell(const ShellPlaces& places, RunEnvironment environment)
    : places_(places),
      settings_(places.settingsFile),
      text_(CodePage(settings_.codePage())),
      run_(withFiles(std::move(environment), written_), *this, text_.page(),
           places.currentDirectory.toStdString()),
      ownFiles_(disk_, CodePage(CodePage::kUtf8), places.currentDirectory.toStdString()),
      view_(std::make_unique<MainView>(text_)),
      guard_(std::make_unique<InputGuard>(view_.get())) {
  refreshHowTo(main().window, true);
  view_->restoreGeometry(settings_.windowGeometry());
  view_->toolbar().showRecentFiles(settings_.recentFiles());
  view_->toolbar().showCodePage(settings_.codePage());
  view_->offerDirectories(settings_.recentOutputDirectories());
  view_->show(main().window);
  connectView();
}

Shell::~Shell() { delete preview_; }

void Shell::connectView() {
  MainView* const view = view_.get();
  connect(view, &MainView::buttonClicked, this, [this](const QString& name, int index) {
    act([&] { clickButton(main(), name.toStdString(), index); });
  });
  connect(view, &MainView::toolbarClicked, this, [this](const QString& key) {
    bool leaves = false;
    act([&] { leaves = clickToolbar(main(), key.toStdString()) == ToolbarResult::kUnload; });
    if (leaves) view_->close();
  });
  connect(view, &MainView::tabChosen, this,
          [this](int tab) { act([&] { selectTab(main(), tab); }); });
  connect(view, &MainView::listDoubleClicked, this,
          [this](ObjectList list) { act([&] { doubleClickList(main(), list); }); });
  connect(view, &MainView::helpAsked, this, [this](const std::vector<ControlName>& controls) {
    act([&] {
      for (const ControlName& control : controls) {
        if (showTopicOf(main(), control.name.toStdString(), control.index)) return;
      }
    });
  });
  connect(view, &MainView::sourceDropped, this, &Shell::openSource, Qt::QueuedConnection);
  connect(&view->toolbar(), &MainToolbar::recentFileChosen, this, &Shell::openSource);
  connect(&view->toolbar(), &MainToolbar::codePageChosen, this,
          [this](int number) { settings_.setCodePage(number); });
  connect(view, &MainView::closing, this, [this](bool& refused) {
    refused = guard_->isActive();
    if (!refused) unload();
  });
  const auto openUrl = [](const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
  };
  connect(&view->writtenFiles(), &WrittenFilesPanel::folderAsked, this, openUrl);
  connect(&view->writtenFiles(), &WrittenFilesPanel::fileAsked, this, openUrl);
}

void Shell::act(const std::function<void()>& event) {
  if (guard_->isActive() || ended_) return;
  guard_->setActive(true);
  written_->begin();
  view_->read(main().window);
  try {
    event();
  } catch (const std::exception& failure) {
    // Nothing of the conversion's own errors ends here; the window stays usable.
    main().window.mousePointer = 0;
    chosenPath_.reset();
    messageBox(message_style::kCritical, std::string("Internal error: ") + failure.what(),
               kProgramTitle);
  }
  guard_->setActive(false);
  if (ended_) {
    view_->close();
    return;
  }
  view_->show(main().window);
  view_->showItems(main().window);
  view_->giveFocus(std::exchange(main().window.focus, {}));
  showPointer(main().window.mousePointer == kHourglassPointer);
  remember();
}

void Shell::openSource(const QString& path) {
  act([&] {
    chosenPath_ = pathInPage(path);
    clickButton(main(), "cmdOpen");
    chosenPath_.reset();
  });
  if (text_.shown(main().state.gstrDbPath) == path) return;
  settings_.forgetRecentFile(path);
  view_->toolbar().showRecentFiles(settings_.recentFiles());
}

// Outside of what is described: what the next run offers, and what was written.
void Shell::remember() {
  const std::string& path = main().state.gstrDbPath;
  if (path != knownPath_) {
    knownPath_ = path;
    if (!path.empty()) settings_.addRecentFile(text_.shown(path));
    view_->toolbar().showRecentFiles(settings_.recentFiles());
  }
  if (written_->paths().empty()) return;
  QStringList files;
  for (const std::string& file : written_->paths()) files.append(QString::fromStdString(file));
  view_->writtenFiles().showFiles(files);
  settings_.addOutputDirectory(text_.shown(main().window.txtCurDir));
  view_->offerDirectories(settings_.recentOutputDirectories());
}

void Shell::start() {
  splash_ = std::make_unique<Splash>();
  connect(splash_.get(), &Splash::timeUp, this, &Shell::openWindows);
  splash_->show();
}

void Shell::openWindows() {
  TarrowinOpen(main(), marker(), *this);
  showPointer(main().window.mousePointer == kHourglassPointer);
}

Marker Shell::marker() { return {ownFiles_, places_.markerFile.toStdString()}; }

void Shell::unloadSplash() {
  if (splash_ == nullptr) return;
  splash_->close();
  // It may be its own timer that got here.
  splash_.release()->deleteLater();
}

void Shell::showNotice() {
  Notice notice;
  notice.exec();
  if (notice.isUnwanted()) {
    try {
      forgetNotice(marker());
    } catch (const VbError& error) {
      main().errorBox("cmdOk_Click", error);
    }
  }
  showMainWindow();
}

void Shell::showMainWindow() {
  view_->showWindow();
  // The window is to be seen before its Open dialog stands over it.
  QTimer::singleShot(
      0, this, [this] { act([this] { Form_Load(main(), text_.entered(places_.openFolder)); }); });
}

void Shell::unload() {
  settings_.setWindowGeometry(view_->saveGeometry());
  ended_ = true;
  if (preview_ != nullptr) preview_->close();
  unloadProgram(main());
  QCoreApplication::quit();
}

QWidget* Shell::dialogParent() const {
  QWidget* const active = QApplication::activeModalWidget();
  if (active != nullptr) return active;
  return view_->isVisible() ? view_.get() : nullptr;
}

Answer Shell::messageBox(int style, std::string_view text, std::string_view title) {
  const PointerPause pause(hourglass_);
  return showMessageBox(dialogParent(), style, text_.shownLines(text), text_.shown(title));
}

std::string Shell::openFile(const OpenDialog& dialog) {
  std::string path;
  if (chosenPath_) {
    path = *std::exchange(chosenPath_, std::nullopt);
  } else {
    const PointerPause pause(hourglass_);
    path = pathInPage(askForFile(dialogParent(), dialog, text_));
  }
  // What is done with the file may take its time.
  if (!path.empty()) showPointer(true);
  return path;
}

std::string Shell::pathInPage(const QString& path) {
  std::string inPage = text_.entered(path);
  if (text_.shown(inPage) == path) return inPage;
  showMessageBox(dialogParent(), message_style::kInformation,
                 tr("%1\n\nThe path has a character that code page %2 lacks. Choose another page "
                    "under Code Page in the menu of the Open button, and start the program again.")
                     .arg(path)
                     .arg(text_.page().number()),
                 text_.shown(kProgramTitle));
  return {};
}

QString Shell::rememberedOutputDirectory() const {
  return settings_.recentOutputDirectories().value(0);
}

std::optional<std::string> Shell::browseForFolder(std::string_view title) {
  const PointerPause pause(hourglass_);
  const std::optional<QString> folder = askForFolder(
      dialogParent(), text_.shown(title),
      {text_.shown(main().window.txtCurDir), rememberedOutputDirectory(), QDir::homePath()});
  if (!folder) return std::nullopt;
  std::string inPage = pathInPage(*folder);
  if (inPage.empty() && !folder->isEmpty()) return std::nullopt;
  return inPage;
}

std::optional<int> Shell::showBalloon(const Balloon& balloon) {
  const PointerPause pause(hourglass_);
  QStringList labels;
  for (const std::string& label : balloon.labels) labels.append(text_.shownLines(label));
  // Without labels to choose from, what is shown are the paragraphs of the check boxes.
  const auto kind = main().state.gastrBalloonLabels[1].empty() ? HelpBalloon::Labels::kParagraphs
                                                               : HelpBalloon::Labels::kLinks;
  HelpBalloon dialog(text_.shown(balloon.heading), text_.shownLines(balloon.text), labels, kind,
                     dialogParent());
  dialog.exec();
  return dialog.chosen();
}

void Shell::showPreview(const PreviewSurface& surface) {
  delete preview_;
  preview_ = new PreviewWindow(surface, text_);
  preview_->setAttribute(Qt::WA_DeleteOnClose);
  preview_->show();
}

void Shell::refresh(const MainWindow& window) {
  showPointer(window.mousePointer == kHourglassPointer);
  view_->show(window);
  // Input is dropped by the guard; what is left is painting.
  QCoreApplication::processEvents();
}

void Shell::captionChanged(const MainWindow& window) {
  view_->setWindowTitle(text_.shown(window.caption));
}

void Shell::listsFilled(const MainWindow& window) { view_->showItems(window); }

void Shell::programEnded() { ended_ = true; }

void Shell::showPointer(bool hourglass) {
  if (hourglass == hourglass_) return;
  hourglass_ = hourglass;
  if (hourglass) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

}  // namespace tarrowin
