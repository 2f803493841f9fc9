// Access as a main object meets it, watched: each operation is written down and may be told to
// fail. Behind it the model goes on answering.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/main_object.h"

namespace tarrowin::test {

// The failure of each operation whose text holds this.
struct Fault {
  std::string operation;
  VbError error;
};

// An operation reads like Visual Basic: DoCmd.Close(2, "Form1", 1) is a call, Section(0).Height a
// read, Section(0).Height = 11520 a write. A missing argument is nothing between its commas.
class WatchedAccess {
 public:
  // Stands from now on between the main object and its host and open application.
  explicit WatchedAccess(MainObject& main);

  // The calls and writes, those that failed among them.
  std::vector<std::string> log;
  // The reads, with or without arguments.
  std::vector<std::string> reads;
  // Told of each call, read and write before it is done.
  std::function<void(const std::string&)> before;
  std::vector<Fault> faults;

  void fail(std::string operation, std::int32_t number, std::string description = "Told to.") {
    faults.push_back({std::move(operation), VbError(number, std::move(description))});
  }
  // The entries of the log that hold the text.
  std::vector<std::string> logged(std::string_view part) const;
  // Those of them that are calls of the application or its host and no more: no writes to what a
  // call gave.
  std::vector<std::string> called(std::string_view part) const;

  // Notes the operation and raises what it was told to.
  void meet(std::vector<std::string>& entries, const std::string& operation);
};

}  // namespace tarrowin::test
