// The data of the preview: what the data control Data1 shows of the form's first record.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/access_objects.h"
#include "preview/preview_surface.h"

namespace tarrowin {

// The name of the data control.
inline constexpr std::string_view kDataControl = "Data1";

// The data control of a form with that record source. The form's sections are as high as
// totalHeight, in twips; the database has the path.
PreviewControl makeDataControl(std::string_view recordSource, std::string_view databasePath,
                               std::int64_t totalHeight);

// The recordset of a data control, opened when a field is asked for.
class PreviewRecordset {
 public:
  PreviewRecordset(Database database, std::string recordSource)
      : database_(std::move(database)), recordSource_(std::move(recordSource)) {}
  ~PreviewRecordset();
  PreviewRecordset(const PreviewRecordset&) = delete;
  PreviewRecordset& operator=(const PreviewRecordset&) = delete;

  // The field's value in the first record. Raises as DAO does: 3265 without such a field, 3021
  // without a record, and what opening the source raises.
  Value valueOf(std::string_view field);

 private:
  void refresh();

  Database database_;
  std::string recordSource_;
  Recordset recordset_;
  std::optional<VbError> failure_;  // of the opening
};

}  // namespace tarrowin
