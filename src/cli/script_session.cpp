// One function a kind of step.
#include "cli/script_session.h"

#include <algorithm>
#include <utility>

#include "cli/exit_status.h"
#include "cli/paths.h"
#include "core/window_events.h"

namespace tarrowin {

using namespace script_step;

ScriptSession::ScriptSession(const Environment& environment, CodePage codePage, std::string folder,
                             ScriptUser::Transcript transcript)
    : environment_(environment),
      codePage_(codePage),
      folder_(std::move(folder)),
      user_(
          std::move(codePage), [this](const std::string& path) { return resolved(path); },
          std::move(transcript)) {
  startRun();
}

void ScriptSession::startRun() {
  // The old run ends before the new one begins.
  run_.reset();
  run_ = std::make_unique<ProgramRun>(environment_.run, user_, codePage_, folder_);
}

void ScriptSession::run(const ScriptStep& step) {
  if (user_.ended() && !std::holds_alternative<Reset>(step)) return;
  std::visit([this](const auto& kind) { perform(kind); }, step);
}

std::string ScriptSession::resolved(const std::string& path) const {
  return lexicalPath(folder_, path);
}

void ScriptSession::warnOfMissing(ObjectList list, const std::string& text) {
  user_.warn(std::string(nameOfList(list)) + " has no item \"" + text + "\"");
}

void ScriptSession::perform(const Open& step) {
  user_.choosePath(step.path);
  clickButton(main(), "cmdOpen");
  user_.forgetChosenPath();
}

void ScriptSession::perform(const Set& step) {
  MainWindow& window = main().window;
  if (step.txtCurDir) {
    const std::string path = step.txtCurDir->empty() ? "" : resolved(*step.txtCurDir);
    window.txtCurDir = codePage_.fromUtf8(path);
  }
  if (step.cboFormNames) window.cboFormNames = codePage_.fromUtf8(*step.cboFormNames);
  if (step.chkMultiSel) window.chkMultiSel = *step.chkMultiSel;
  if (step.optContinuous) window.optContinuous = *step.optContinuous;
  if (step.optMultiPage) window.optMultiPage = *step.optMultiPage;
  if (step.tabSelect) selectTab(main(), *step.tabSelect);
}

void ScriptSession::perform(const Select& step) {
  std::vector<ListItem>& items = main().window.list(step.list);
  for (ListItem& each : items) each.selected = !step.items;
  if (!step.items) return;
  for (const std::string& text : *step.items) {
    const std::string wanted = codePage_.fromUtf8(text);
    bool found = false;
    for (ListItem& each : items) {
      if (each.text != wanted) continue;
      each.selected = true;
      found = true;
    }
    if (!found) warnOfMissing(step.list, text);
  }
}

void ScriptSession::perform(const Click& step) {
  // The script's reader knows the window's buttons; one that nothing answers does nothing.
  clickButton(main(), step.button, step.index);
}

void ScriptSession::perform(const DoubleClick& step) {
  std::vector<ListItem>& items = main().window.list(step.list);
  for (ListItem& each : items) each.selected = false;
  const auto clicked = std::ranges::find(items, codePage_.fromUtf8(step.item), &ListItem::text);
  if (clicked == items.end()) return warnOfMissing(step.list, step.item);
  clicked->selected = true;
  doubleClickList(main(), step.list);
}

void ScriptSession::perform(const Answers& step) { user_.queueAnswers(step.answers); }

void ScriptSession::perform(const Config& step) {
  const auto take = [this](std::optional<std::string>& member,
                           const std::optional<std::string>& given) {
    if (given) member = codePage_.fromUtf8(*given);
  };
  MachinePaths& machine = main().machine;
  take(machine.systemDir, step.machine.systemDir);
  take(machine.msderunPath, step.machine.msderunPath);
  take(machine.msadoPath, step.machine.msadoPath);
}

void ScriptSession::perform(const Reset&) {
  user_.reset();
  startRun();
}

}  // namespace tarrowin
