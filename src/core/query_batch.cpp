// ConvertQueries: its confirmation, its two loops, its summary.
#include "core/query_batch.h"

#include <optional>
#include <unordered_map>

#include "core/batch_driver.h"
#include "query/query_module.h"
#include "shared/text_procedures.h"
#include "shared/vb_number.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// A selection of more queries than this is questioned.
constexpr int kQuestionedAbove = 50;

// QueryDefs by exact name, as one walk over the collection finds them.
class QueryNames {
 public:
  explicit QueryNames(Collection<QueryDef> queryDefs) : queryDefs_(std::move(queryDefs)) {
    const std::int32_t count = queryDefs_.Count();
    for (std::int32_t i = 0; i < count; ++i) index_.try_emplace(queryDefs_(i).Name(), i);
  }

  std::optional<QueryDef> find(const std::string& name) const {
    const auto found = index_.find(name);
    if (found == index_.end()) return std::nullopt;
    return queryDefs_(found->second);
  }

 private:
  Collection<QueryDef> queryDefs_;
  std::unordered_map<std::string, std::int32_t> index_;
};

class QueryBatch : public BatchDriver {
 public:
  explicit QueryBatch(MainObject& main)
      : BatchDriver(main, batchMember(ObjectList::kQueries)), state_(main.state) {}

 protected:
  void resetLists() override { state_.mstrVbQueries.reset(); }
  bool preflight() override;
  void convertSelection() override;
  std::string summary() override;

 private:
  bool isMultiple() const { return selectedCount_ >= 2 && main_.window.chkMultiSel == 1; }
  void convertIntoOneFile();
  void convertIntoFiles();
  void appendToOneFile();
  void writeOwnFile();
  std::optional<QueryDef> lookUp(const std::string& name);
  // True when the object in hand failed for a reason that the summary counts.
  bool countedFailure();
  void countConverted();
  std::string successText() const;
  std::string failureNote() const;

  ConversionState& state_;
  std::optional<QueryNames> names_;
  std::string strSQL_;  // not cleared between the items of the one-file-a-query loop
  int failedCount_ = 0;
};

bool QueryBatch::preflight() {
  if (selectedCount_ <= kQuestionedAbove) return true;
  std::int16_t seconds = 0;
  statement([&] { seconds = toInt16(selectedCount_ * 0.11618 * 100.0); });
  const Answer answer = main_.messageBox(
      message_style::kYesNoQuestionDefaultNo,
      "Selecting more than 50 Queries to convert to Visual Basic Module (.bas) files may take "
      "about " +
          FormatSeconds(seconds) +
          " to complete depending on how complex the Queries are. \r\n\r\n"
          "It is recommended that you convert no more than about 25 Queries at one time.\r\n\r\n"
          "Do you still want to convert the" +
          Str(selectedCount_) + " selected Queries?");
  return answer == Answer::kYes;
}

void QueryBatch::convertSelection() {
  if (isMultiple()) {
    convertIntoOneFile();
  } else {
    convertIntoFiles();
  }
}

void QueryBatch::convertIntoOneFile() {
  state_.mblnFirstQuery = true;
  showProgress();
  statement([&] { state_.mdbCurr.QueryDefs().Refresh(); });
  for (std::size_t i = 1; i <= items().size(); ++i) {
    beginItem(i);
    if (!items()[i - 1].selected) continue;
    selectedName_ = currentName_;
    main_.user.refresh(main_.window);
    appendToOneFile();
  }
  statement([&] { main_.files.Close(kOutputFile); });
}

void QueryBatch::appendToOneFile() {
  const std::optional<QueryDef> query = lookUp(selectedName_);
  if (!query || selectedName_.starts_with('~')) return;
  statement([&] { strSQL_ = query->SQL(); });
  if (countedFailure() || strSQL_.empty()) return;
  if (convertedCount_ > 0) state_.mblnFirstQuery = false;
  SetupQueryNames(main_, selectedName_);
  cutToProcedureName(state_.gstrQueryFile);
  const std::string text = queryModuleText(state_.gstrQueryFile, strSQL_);
  statement([&] { main_.files.Print(kOutputFile, text); });
  statement([&] { main_.files.Print(kOutputFile, ""); });
  countConverted();
}

void QueryBatch::convertIntoFiles() {
  for (const ListItem& item : items()) {
    errorNumber_ = 0;
    currentName_ = item.text;
    if (!item.selected) continue;
    selectedName_ = currentName_;
    main_.user.refresh(main_.window);
    writeOwnFile();
  }
}

void QueryBatch::writeOwnFile() {
  if (const std::optional<QueryDef> query = lookUp(selectedName_)) {
    statement([&] { strSQL_ = query->SQL(); });
  }
  if (countedFailure() || strSQL_.empty()) return;
  SetupQueryNames(main_, selectedName_);
  cutToProcedureName(state_.gstrQueryFile);
  WriteSQLQuery(main_, queryModuleText(state_.gstrQueryFile, strSQL_));
  countConverted();
}

std::optional<QueryDef> QueryBatch::lookUp(const std::string& name) {
  std::optional<QueryDef> query;
  statement([&] {
    if (!names_) names_.emplace(state_.mdbCurr.QueryDefs());
    query = names_->find(name);
  });
  return query;
}

bool QueryBatch::countedFailure() {
  if (errorNumber_ != 2601 && errorNumber_ != 3258) return false;
  ++failedCount_;
  return true;
}

void QueryBatch::countConverted() {
  ++convertedCount_;
  state_.mstrVbQueries.append(state_.gstrQueryFile);
}

std::string QueryBatch::summary() {
  if (convertedCount_ == 0) {
    return "Unable to convert Access Queries to Visual Basic Modules.\r\n\r\n" + failureNote();
  }
  return successText() + failureNote();
}

std::string QueryBatch::successText() const {
  const std::string& directory = state_.mstrOutputDir;
  if (convertedCount_ == 1) {
    const std::string& name = isMultiple() ? currentName_ : selectedName_;
    return "Successfully converted Access Query: " + name +
           " to Visual Basic Module: " + state_.gstrQueryFile + ".bas.\r\n\r\n" +
           "Converted Query is saved in directory: " + directory + "\r\n\r\n";
  }
  const std::string target = isMultiple() ? "Module " + state_.mstrQueriesFile + "." : "Modules. ";
  return "Successfully converted " + LTrimStr(convertedCount_) +
         " Access Queries to Visual Basic " + target + "\r\n\r\n" +
         "Converted Queries are saved in directory: " + directory + "\r\n\r\n";
}

std::string QueryBatch::failureNote() const {
  if (failedCount_ == 0) return "";
  if (failedCount_ == 1) {
    return "Note: One Access Query was not converted to a Visual Basic Module. You either do not "
           "have permission for the Query or the Query contains invalid Joins.\r\n\r\n";
  }
  // Without a converted query the note keeps a blank of its own before Str's.
  const std::string note = convertedCount_ == 0 ? "Note: " : "Note:";
  return note + Str(failedCount_) +
         " Access Queries were not converted to Visual Basic Modules. You either do not have "
         "permission for the Queries or they contain invalid Joins.\r\n\r\n";
}

}  // namespace

void ConvertQueries(MainObject& main, bool blnAll) { QueryBatch(main).run(blnAll); }

}  // namespace tarrowin
