// Opens the source and walks its fields. All items of a report ask for the same source: what was
// found without an error is kept until the source is another.
#include "reports/data_member.h"

#include "query/sql_analysis.h"
#include "reports/report_source.h"
#include "reports/report_values.h"
#include "shared/text_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

constexpr std::int32_t kErrTooFewParameters = 3061;

enum class SourceKind { kTable, kQuery, kSqlText };

// One look at strRecordSource.
class SourceSearch {
 public:
  SourceSearch(MainObject& main, ReportProcedure& procedure)
      : main_(main), state_(main.state), procedure_(procedure) {}

  // What holds each field; nothing when the source cannot be opened.
  SourceMembers run() {
    kind_ = kindOfSource();
    open();
    SourceMembers found{state_.strRecordSource, {}};
    if (!recordset_) return found;
    Collection<Field> fields;
    std::int32_t count = 0;
    run([&] {
      fields = recordset_.Fields();
      count = fields.Count();
    });
    for (std::int32_t i = 0; i < count; ++i) {
      run([&] {
        const Field field = fields(i);
        found.memberOf.try_emplace(field.Name(), memberOf(field));
      });
    }
    run([&] { recordset_.Close(); });
    return found;
  }
  // Whether another look would find the same.
  bool isFinal() const { return recordset_ && !failed_; }

 private:
  template <class Statement>
  std::int32_t run(Statement&& statement) {
    const std::int32_t error = procedure_.errorOf(statement);
    failed_ = failed_ || error != 0;
    return error;
  }

  SourceKind kindOfSource() {
    if (TableOrQuery(main_, state_.strRecordSource) == 1) return SourceKind::kTable;
    return isSqlText(state_.strRecordSource) ? SourceKind::kSqlText : SourceKind::kQuery;
  }

  void open() {
    if (kind_ == SourceKind::kQuery) return openNamedQuery();
    const std::int32_t error = openSource();
    if (kind_ == SourceKind::kSqlText && error == kErrTooFewParameters) openShortened();
  }

  void openNamedQuery() { recordset_ = openQuery(main_, procedure_, state_.strRecordSource); }

  std::int32_t openSource() {
    return run([&] {
      recordset_ =
          state_.mdbCurr.OpenRecordset(state_.strRecordSource, access_constants::dbOpenDynaset);
    });
  }

  void openShortened() {
    std::string sql = ExtractSQL(main_, state_.strRecordSource);
    if (sql.starts_with("PARAMETERS")) {
      state_.strRecordSource = ExtractSQLParams(main_, sql);
      kind_ = SourceKind::kQuery;
      return openNamedQuery();
    }
    if (!refersToForms(state_.strRecordSource)) return;
    for (const std::string_view where : {"WHERE ", "Where ", "where "}) {
      const std::size_t found = state_.strRecordSource.find(where);
      if (found == std::string::npos) continue;
      state_.strRecordSource.resize(found);
      break;
    }
    openSource();
  }

  std::string memberOf(const Field& field) const {
    switch (kind_) {
      case SourceKind::kTable:
        return MakeVBName(field.SourceTable());
      case SourceKind::kSqlText:
        return "Command1";
      case SourceKind::kQuery:
        break;
    }
    return MakeVBName(std::string(state_.strRecordSource));
  }

  MainObject& main_;
  ConversionState& state_;
  ReportProcedure& procedure_;
  SourceKind kind_ = SourceKind::kQuery;
  Recordset recordset_;
  bool failed_ = false;
};

std::optional<std::string> memberIn(const SourceMembers& members, std::string_view field) {
  const auto found = members.memberOf.find(std::string(field));
  if (found == members.memberOf.end()) return std::nullopt;
  return found->second;
}

}  // namespace

std::optional<std::string> dataMemberOf(MainObject& main, ReportProcedure& procedure,
                                        std::string_view field) {
  ConversionState& state = main.state;
  SourceMembers& known = state.sourceMembers;
  if (!known.memberOf.empty() && known.source == state.strRecordSource)
    return memberIn(known, field);
  SourceSearch search(main, procedure);
  SourceMembers found = search.run();
  const std::optional<std::string> member = memberIn(found, field);
  if (search.isFinal()) known = std::move(found);
  return member;
}

void forgetDataMembers(ConversionState& state) { state.sourceMembers = {}; }

}  // namespace tarrowin
