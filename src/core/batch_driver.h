// The driver family: the whole road from a click to files on disk, told once for the six kinds of
// objects. A member adds its row of data and the steps in which it differs.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/main_object.h"
#include "core/statement.h"

namespace tarrowin {

// What a driver does about an error number.
enum class BatchReaction {
  kGoOn,            // at the next statement, silently
  kNoPermission,    // says that the object may not be opened, and goes on
  kBoxGoOn,         // the error box, and goes on
  kBoxPointerGoOn,  // the error box, hourglass off, and goes on
  kBoxEnd,          // the error box, hourglass off, and the driver ends
  kBoxEchoEnd,      // as kBoxEnd, and Access paints its screen again
  kAutoExec,        // asks whether to stop the program; ends the driver with it, or goes on
};

struct BatchErrorRow {
  std::int32_t number;
  BatchReaction reaction;
};

// One member of the family, as far as data tells it.
struct BatchMember {
  ObjectList list;
  std::string_view procedure;    // the name in its error box
  std::string_view refusedWord;  // the word in the message about a missing permission
  std::string_view nothingSelected;
  std::string_view emptyList;
  std::string_view labelPrefix;
  std::span<const BatchErrorRow> errors;
  BatchReaction anyOtherError;
};

// The row of a list.
const BatchMember& batchMember(ObjectList list);

class BatchDriver {
 public:
  BatchDriver(MainObject& main, const BatchMember& member);
  virtual ~BatchDriver() = default;
  BatchDriver(const BatchDriver&) = delete;
  BatchDriver& operator=(const BatchDriver&) = delete;

  // Converts the selected items of the list, or all of them.
  void run(bool blnAll);

 protected:
  // The driver's growing lists, emptied at its start.
  virtual void resetLists() = 0;
  // Questions before the work; false ends the driver.
  virtual bool preflight() { return true; }
  // The loop over the list.
  virtual void convertSelection() = 0;
  // What follows the closing box, or the message that the list is empty.
  virtual void closingStep() {}
  // The text of the closing box, without the elapsed time.
  virtual std::string summary() = 0;
  // Whether the elapsed time follows it.
  virtual bool isTimed() const { return convertedCount_ > 0; }
  // What is done between the text and its box.
  virtual void beforeClosingBox() {}
  // What lblPct shows at the top of a pass; the selected item lags one behind.
  virtual std::string progressText() const {
    return std::string(member_.labelPrefix) + selectedName_;
  }

  // Runs one statement under the driver's error table; the number of the last error of the object
  // in hand stays in errorNumber_.
  template <class Statement>
  bool statement(Statement&& statement) {
    return procedure_.statement(std::forward<Statement>(statement));
  }
  // Ends the driver at once.
  [[noreturn]] void leave() const { procedure_.leave(); }

  // Makes the progress controls visible.
  void showProgress();
  // What is done at the top of the pass for item i, 1-based: error number, bar, current name,
  // labels.
  void beginItem(std::size_t i);

  const std::vector<ListItem>& items() const { return main_.window.list(member_.list); }

  MainObject& main_;
  const BatchMember& member_;
  int selectedCount_ = 0;
  int convertedCount_ = 0;
  std::int32_t errorNumber_ = 0;
  std::string currentName_;   // the list's item in hand, selected or not
  std::string selectedName_;  // the selected item in hand; before the first, the one remembered

 private:
  bool readSelection(bool blnAll);
  void convert();
  Resume onError(const VbError& error);
  Resume askToStop();
  void finish(double startTime);

  Procedure procedure_;
};

// "Conversion completed in: 00:05 seconds."; the times are fractions of a day. The word is singular
// whenever the seconds read "01".
std::string elapsedTimeSentence(double start, double end);

}  // namespace tarrowin
