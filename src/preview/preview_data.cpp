// Data1 and its recordset.
#include "preview/preview_data.h"

#include "core/statement.h"
#include "preview/twips.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// RecordsetType: vbRSTypeTable, vbRSTypeDynaset.
constexpr std::int32_t kTable = 0, kDynaset = 1;
// Twips.
constexpr std::int32_t kHeight = 276, kWidth = 2880;

bool isSql(std::string_view recordSource) {
  constexpr std::string_view kSelect = "SELECT";
  return UCase(recordSource.substr(0, kSelect.size())) == kSelect;
}

}  // namespace

PreviewControl makeDataControl(std::string_view recordSource, std::string_view databasePath,
                               std::int64_t totalHeight) {
  PreviewControl data;
  data.className = "VB.Data";
  data.name = kDataControl;
  data.put("Connect", "Access");
  data.put("DatabaseName", databasePath);
  data.put("Enabled", true);
  data.put("Exclusive", false);
  data.put("Height", kHeight);
  data.put("Top", twips(totalHeight - kHeight));
  data.put("Width", kWidth);
  data.put("RecordsetType", isSql(recordSource) ? kDynaset : kTable);
  data.put("RecordSource", recordSource);
  data.put("Visible", false);
  return data;
}

PreviewRecordset::~PreviewRecordset() {
  if (recordset_) ignoringErrors([this] { recordset_.Close(); });
}

// A source that cannot be opened is not tried again for every control.
void PreviewRecordset::refresh() {
  if (failure_) throw *failure_;
  if (recordset_) return;
  try {
    recordset_ = database_.OpenRecordset(recordSource_, access_constants::dbOpenDynaset);
  } catch (const VbError& error) {
    failure_ = error;
    throw;
  }
}

Value PreviewRecordset::valueOf(std::string_view field) {
  refresh();
  return recordset_.Fields()(field).get("Value");
}

}  // namespace tarrowin
