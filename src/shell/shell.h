// The window's side of one run of the program: it brings the windows up, hands what the user does
// to the main object, and shows what comes of it.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <string>

#include "core/start_up.h"
#include "core/user.h"
#include "program/program_run.h"
#include "shell/main_view.h"
#include "shell/page_text.h"
#include "shell/settings.h"
#include "shell/written_files.h"

namespace tarrowin {

class InputGuard;
class PreviewWindow;
class Splash;

// Where a run finds its files. All are absolute paths as the disk knows them.
struct ShellPlaces {
  QString settingsFile;
  QString markerFile;
  QString openFolder;        // where the first Open dialog starts
  QString currentDirectory;  // where relative paths start
};

class Shell : public QObject, public User, public StartUpWindows {
  Q_OBJECT

 public:
  Shell(const ShellPlaces& places, RunEnvironment environment = {});
  ~Shell() override;

  // Shows the splash, whose timer goes on.
  void start();

  MainObject& main() { return run_.main(); }
  MainView& view() { return *view_; }

  // The splash's timer.
  void openWindows();
  // Opens the database at the path as though the Open dialog had answered it.
  void openSource(const QString& path);

  Answer messageBox(int style, std::string_view text, std::string_view title) override;
  std::string openFile(const OpenDialog& dialog) override;
  std::optional<std::string> browseForFolder(std::string_view title) override;
  std::optional<int> showBalloon(const Balloon& balloon) override;
  void showPreview(const PreviewSurface& surface) override;
  void refresh(const MainWindow& window) override;
  void captionChanged(const MainWindow& window) override;
  void listsFilled(const MainWindow& window) override;
  void programEnded() override;

  void unloadSplash() override;
  void showNotice() override;
  void showMainWindow() override;

 private:
  // Runs one event of the user to its end; another one meanwhile is dropped.
  void act(const std::function<void()>& event);
  void connectView();
  void showPointer(bool hourglass);
  void remember();
  void unload();
  Marker marker();
  QString rememberedOutputDirectory() const;
  QWidget* dialogParent() const;
  // The path in the code page; empty, with a box that says why, when the page lacks a character.
  std::string pathInPage(const QString& path);

  ShellPlaces places_;
  Settings settings_;
  PageText text_;
  std::shared_ptr<WrittenFiles> written_ = std::make_shared<WrittenFiles>();
  ProgramRun run_;
  PosixFileSystem disk_;
  FileSlots ownFiles_;  // the program's own settings
  std::unique_ptr<MainView> view_;
  std::unique_ptr<InputGuard> guard_;
  std::unique_ptr<Splash> splash_;
  QPointer<PreviewWindow> preview_;
  std::optional<std::string> chosenPath_;
  std::string knownPath_;  // the database that the recent files know of already
  bool hourglass_ = false;
  bool ended_ = false;
};

}  // namespace tarrowin
