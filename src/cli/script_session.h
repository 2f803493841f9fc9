// Runs the steps of a session script on the main object.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cli/environment.h"
#include "cli/script_user.h"
#include "cli/session_script.h"
#include "program/program_run.h"
#include "shared/code_page.h"

namespace tarrowin {

class ScriptSession {
 public:
  // The folder is the script's, absolute: relative paths of the script start there, and so does the
  // program.
  ScriptSession(const Environment& environment, CodePage codePage, std::string folder,
                ScriptUser::Transcript transcript);

  // A step that has nothing to work on, such as an item that is not in the list, leaves a warning
  // in the transcript.
  void run(const ScriptStep& step);

  MainObject& main() { return run_->main(); }
  FileSlots& files() { return run_->files(); }

 private:
  void perform(const script_step::Open& step);
  void perform(const script_step::Set& step);
  void perform(const script_step::Select& step);
  void perform(const script_step::Click& step);
  void perform(const script_step::DoubleClick& step);
  void perform(const script_step::Answers& step);
  void perform(const script_step::Config& step);
  void perform(const script_step::Reset& step);

  std::string resolved(const std::string& path) const;
  void warnOfMissing(ObjectList list, const std::string& text);
  void startRun();

  const Environment& environment_;
  CodePage codePage_;
  std::string folder_;
  ScriptUser user_;
  std::unique_ptr<ProgramRun> run_;
};

}  // namespace tarrowin
