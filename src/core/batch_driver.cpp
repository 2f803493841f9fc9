// The skeleton of the six drivers: selection, output directory, progress, summary.
#include "core/batch_driver.h"

#include <algorithm>

#include "core/output_directory.h"
#include "shared/vb_format.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {
constexpr int kDefaultPointer = 0;
constexpr int kHourglassPointer = 11;

std::int32_t& countField(ConversionState& state, ObjectList list) {
  switch (list) {
    case ObjectList::kQueries:
      return state.mintQueryCount;
    case ObjectList::kForms:
      return state.mintFormCount;
    case ObjectList::kReports:
      return state.mintReportCount;
    case ObjectList::kMacros:
      return state.mintMacroCount;
    case ObjectList::kModules:
      return state.mintModuleCount;
    case ObjectList::kObjects:
      break;
  }
  return state.mintObjectCount;
}
}  // namespace

BatchDriver::BatchDriver(MainObject& main, const BatchMember& member)
    : main_(main), member_(member), procedure_([this](const VbError& e) { return onError(e); }) {}

void BatchDriver::run(bool blnAll) {
  resetLists();
  main_.lastBatch = {};
  countField(main_.state, member_.list) = static_cast<std::int32_t>(items().size());
  if (!readSelection(blnAll)) {
    main_.messageBox(message_style::kInformation, member_.nothingSelected);
    return;
  }
  main_.lastBatch.selected = selectedCount_;
  if (!GetOutputDir(main_)) return;
  procedure_.run([this] { convert(); });
  main_.lastBatch.converted = convertedCount_;
}

bool BatchDriver::readSelection(bool blnAll) {
  std::vector<ListItem>& list = main_.window.list(member_.list);
  if (blnAll) {
    for (ListItem& item : list) item.selected = true;
    selectedCount_ = static_cast<int>(list.size());
    return true;
  }
  // The item remembered here shows in the progress label until the first object is in hand: the
  // last selected form, the first selected item of any other list.
  for (const ListItem& item : list) {
    if (!item.selected) continue;
    if (selectedCount_ == 0 || member_.list == ObjectList::kForms) selectedName_ = item.text;
    ++selectedCount_;
  }
  return selectedCount_ > 0;
}

void BatchDriver::convert() {
  if (items().empty()) {
    main_.messageBox(message_style::kInformation, member_.emptyList);
    closingStep();
    return;
  }
  if (!preflight()) return;
  main_.window.mousePointer = kHourglassPointer;
  const double startTime = main_.Time();
  convertSelection();
  finish(startTime);
}

void BatchDriver::finish(double startTime) {
  std::string text = summary();
  if (isTimed()) text += elapsedTimeSentence(startTime, main_.Time());
  beforeClosingBox();
  MainWindow& window = main_.window;
  window.mousePointer = kDefaultPointer;
  main_.messageBox(message_style::kInformation, text);
  window.lblCurDb.visible = true;
  window.lblPct.caption.clear();
  window.lblPercent.caption.clear();
  if (member_.list == ObjectList::kForms) window.lblPercent.visible = false;
  ProgressBar& bar = window.ProgressBar1[indexOf(member_.list)];
  bar.visible = false;
  bar.value = bar.min;
  closingStep();
}

Resume BatchDriver::onError(const VbError& error) {
  errorNumber_ = error.number();
  const auto row = std::find_if(
      member_.errors.begin(), member_.errors.end(),
      [&](const BatchErrorRow& candidate) { return candidate.number == error.number(); });
  const BatchReaction reaction =
      row == member_.errors.end() ? member_.anyOtherError : row->reaction;
  if (reaction == BatchReaction::kGoOn) return Resume::kNext;
  if (reaction == BatchReaction::kNoPermission) {
    main_.messageBox(message_style::kInformation, "You don't have permission to open " +
                                                      std::string(member_.refusedWord) + " " +
                                                      selectedName_ + ".");
    return Resume::kNext;
  }
  if (reaction == BatchReaction::kAutoExec) return askToStop();
  main_.errorBox(member_.procedure, error);
  if (reaction == BatchReaction::kBoxGoOn) return Resume::kNext;
  if (reaction == BatchReaction::kBoxEchoEnd) {
    ignoringErrors([&] { main_.state.gappAccess.doCmd().Echo(true); });
  }
  main_.window.mousePointer = kDefaultPointer;
  return reaction == BatchReaction::kBoxPointerGoOn ? Resume::kNext : Resume::kLeave;
}

Resume BatchDriver::askToStop() {
  const Answer answer = main_.messageBox(
      message_style::kYesNoCritical,
      "Unable to open Form '" + selectedName_ +
          "'. This may be due to an AutoExec macro running in the database. It is recommended that "
          "you stop the program and while holding the Shift-key down, open the database again. "
          "\r\n\r\nIf you do not stop the program, none of the Objects in the database will be "
          "converted.\r\n\r\nStop the program now?");
  if (answer != Answer::kYes) return Resume::kNext;
  Application& access = main_.state.gappAccess;
  ignoringErrors([&] { access.CloseCurrentDatabase(); });
  ignoringErrors([&] { access.doCmd().Hourglass(false); });
  ignoringErrors([&] { access.Quit(access_constants::acQuitSaveAll); });
  access = {};
  main_.user.programEnded();
  return Resume::kLeave;
}

void BatchDriver::showProgress() {
  MainWindow& window = main_.window;
  window.lblCurDb.visible = false;
  window.lblPct.visible = true;
  window.lblPercent.visible = true;
  ProgressBar& bar = window.ProgressBar1[indexOf(member_.list)];
  bar.visible = true;
  bar.value = bar.min;
  bar.max = static_cast<int>(items().size());
}

void BatchDriver::beginItem(std::size_t i) {
  MainWindow& window = main_.window;
  errorNumber_ = 0;
  window.ProgressBar1[indexOf(member_.list)].value = static_cast<int>(i);
  currentName_ = items()[i - 1].text;
  window.lblPct.caption = progressText();
  const double percent = static_cast<double>(i) / static_cast<double>(items().size()) * 100;
  window.lblPercent.caption = formatWhole(percent) + "%";
}

std::string elapsedTimeSentence(double start, double end) {
  const std::string elapsed = formatMinutesSeconds(Date{end - start});
  const bool singular = Right(elapsed, 2) == "01";
  return "Conversion completed in: " + elapsed + (singular ? " second." : " seconds.");
}

}  // namespace tarrowin
