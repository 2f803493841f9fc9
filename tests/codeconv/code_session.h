// A session for the code procedures alone: a small stand-in for Access that exports a given text
// and can refuse any of its operations, real files in a folder of its own, and a user who keeps
// the boxes.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "core/main_object.h"
#include "shared/faulty_file_system.h"
#include "support/test_session.h"

namespace tarrowin::test {

// Application, Modules(name), DoCmd, CurrentDb and the form in hand, all in one object.
class StandInAccess : public AccessObject {
 public:
  Value get(std::string_view name, Arguments) override {
    if (name == "Modules" || name == "DoCmd" || name == "CurrentDb") {
      return Value(shared_from_this());
    }
    attempt(name);
    if (name == "CountOfLines") return Value(countOfLines);
    if (name == "Version") return Value(version);
    if (name == "HasModule") return Value(hasModule);
    raise(kErrNoSuchMember);
  }
  void put(std::string_view, const Value&) override { raise(kErrNoSuchMember); }
  Value call(std::string_view name, Arguments arguments) override {
    if (name == "OutputTo") {
      exported = {toText(arguments[0]), toText(arguments[1]), toText(arguments[2]),
                  toText(arguments[3])};
      if (!failToWrite) writeFile(exported.at(3), text);
    } else if (name == "Close") {
      closed = {toText(arguments[0]), toText(arguments[1]), toText(arguments[2])};
    } else {
      raise(kErrNoSuchMember);
    }
    attempt(name);
    return {};
  }

  std::string text;  // what an export gives
  std::int32_t countOfLines = 1;
  std::string version = "4.0";
  bool hasModule = true;
  bool failToWrite = false;  // an export leaves no file
  // Runs when a member is asked for, last in it; may raise.
  std::function<void(std::string_view member)> onMember;

  std::vector<std::string> exported;  // arguments of the last OutputTo
  std::vector<std::string> closed;    // arguments of the last Close
  std::vector<std::string> asked;     // members in order

 private:
  void attempt(std::string_view name) {
    asked.emplace_back(name);
    if (onMember) onMember(name);
  }
};

class CodeSession {
 public:
  CodeSession()
      : disk(),
        files(disk, CodePage(), folder_.path().string()),
        main(user, files, AccessHost(), [] { return Date{46000.5}; }),
        access(std::make_shared<StandInAccess>()) {
    ConversionState& state = main.state;
    state.gappAccess = Application(access);
    state.frmCurr = LateBound(access);
    state.mstrOutputDir = folder_.path().string() + "/";
    state.mstrDbFullName = "C:\\d\\x.mdb";
    state.mstrModName = "Utilities";
    state.mstrModFile = "Utilities.bas";
    state.mstrObjName = "Sales Form";
    state.mstrFormFile = "Sales_Form.frm";
    state.strCtlName = "txtLast";
  }

  // Leaves file 1 open behind a property block, as the naming and the form writer do.
  void beginForm() {
    files.Open(main.state.mstrOutputDir + main.state.mstrFormFile, FileMode::kAppend, kOutputFile);
    files.Print(kOutputFile, "(properties)");
  }

  std::filesystem::path path(std::string_view name) const { return folder_.path() / name; }
  std::string content(std::string_view name) const { return fileContent(path(name)); }
  std::vector<std::string> names() const { return fileNames(folder_.path()); }
  const std::vector<Box>& boxes() const { return user.boxes; }
  bool bothFilesAreClosed() const {
    return !files.IsOpen(kOutputFile) && !files.IsOpen(kExportFile);
  }

 private:
  TemporaryFolder folder_;

 public:
  FaultyFileSystem disk;
  RecordingUser user;
  FileSlots files;
  MainObject main;
  std::shared_ptr<StandInAccess> access;
};

}  // namespace tarrowin::test
