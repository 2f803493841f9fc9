// Cuts the table's name and asks DAO for its fields.
#include "forms/row_source_fields.h"

#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// From the keyword to the name behind it and a blank.
constexpr std::int32_t kKeywordLength = 5;

std::string tableName(std::string_view source) {
  const std::int32_t keyword = InStr(source, "FROM");
  if (keyword == 0) return std::string(source);
  const std::string rest = Mid(source, keyword + kKeywordLength);
  std::int32_t end = InStr(rest, " ");
  if (end == 0) end = InStr(rest, ";");
  return end == 0 ? rest : Left(rest, end - 1);
}

}  // namespace

std::string GetRowSourceFields(MainObject& main, std::string_view source, std::int32_t bound) {
  const Collection<Field> fields = main.state.mdbCurr.TableDefs()(tableName(source)).Fields();
  std::string result;
  const std::int32_t count = fields.Count();
  for (std::int32_t i = 0; i < count; ++i) {
    if (i == bound - 1) result = fields(i).Name() + ",";
    if (i == bound) result += fields(i).Name();
  }
  return result;
}

}  // namespace tarrowin
