// The frame of a procedure that converts exported code: the output file, the temporary export
// file, and one error handler whose table is data.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "core/main_object.h"
#include "core/statement.h"

namespace tarrowin {

// What a handler does before it goes on, in this order; bits of CodeErrorRow::steps.
namespace code_error {
inline constexpr unsigned kSilent = 0;
inline constexpr unsigned kBox = 1;
inline constexpr unsigned kCloseExport = 2;
inline constexpr unsigned kCloseOutput = 4;
inline constexpr unsigned kDeleteExport = 8;
}  // namespace code_error

struct CodeErrorRow {
  std::int32_t number;
  unsigned steps;
  Resume then;
};

struct CodeErrorTable {
  std::span<const CodeErrorRow> rows;
  CodeErrorRow anyOther;  // its number means nothing
};

class CodeProcedure {
 public:
  // The text of the box for an error.
  using BoxText = std::function<std::string(const VbError&)>;

  CodeProcedure(MainObject& main, const CodeErrorTable& table, BoxText boxText);

  // Runs the body up to its end or to an error whose row leaves.
  template <class Body>
  void run(Body&& body) {
    procedure_.run(std::forward<Body>(body));
  }

  // Runs one statement; true when it had its effect.
  template <class Statement>
  bool statement(Statement&& statement) {
    retried_ = false;
    return procedure_.statement(std::forward<Statement>(statement));
  }

  // Print #1 as a statement of its own.
  void print(std::string_view line) {
    statement([&] { main_.files.Print(kOutputFile, line); });
  }

  // Names the temporary file and deletes an older one. It lies beside the output.
  void setExportFile(std::string path);
  // Lets Access write a module's text to the temporary file.
  void exportModule(std::string_view moduleName);
  void openExport(FileMode mode);
  // Reads the export line by line into strCodeLine. A line that cannot be read leaves the one
  // before in place; a failing test for the end counts as the end.
  template <class Body>
  void readLines(Body&& body) {
    while (!atEnd()) {
      statement([&] { main_.state.strCodeLine = main_.files.LineInput(kExportFile); });
      body();
    }
  }
  void close(int fileNumber);
  void deleteExport();

  // The number of the last error, 0 before the first.
  std::int32_t lastErrorNumber() const { return lastErrorNumber_; }

 private:
  bool atEnd();
  Resume onError(const VbError& error);
  const CodeErrorRow& rowFor(std::int32_t number) const;

  MainObject& main_;
  const CodeErrorTable& table_;
  BoxText boxText_;
  std::string exportFile_;
  std::int32_t lastErrorNumber_ = 0;
  bool retried_ = false;  // the statement in hand is being run again
  Procedure procedure_;
};

}  // namespace tarrowin
