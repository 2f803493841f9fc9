// Cells as texts, turned into values by the types of their fields.
#include "access/exports/table_rows.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "access/exports/xml_element.h"
#include "access/macro/export_lines.h"
#include "access/model/case_folding.h"
#include "access/snapshot/base64.h"
#include "access/snapshot/iso_date.h"

namespace tarrowin::exports {

namespace {

constexpr std::int32_t kErrConversion = 3421;

enum DaoType : std::int32_t {
  kBoolean = 1,
  kByte = 2,
  kInteger = 3,
  kLong = 4,
  kCurrency = 5,
  kSingle = 6,
  kDouble = 7,
  kDate = 8,
  kBinary = 9,
  kLongBinary = 11,
  kDecimal = 20
};

template <class Number>
std::optional<Value> numberValue(const std::string& text) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || rest != end) return std::nullopt;
  return Value(number);
}

std::optional<Value> booleanValue(const std::string& text, const CaseFolding& folding) {
  if (text == "1" || text == "-1" || folding.equal(text, "true")) return Value(true);
  if (text == "0" || folding.equal(text, "false")) return Value(false);
  return std::nullopt;
}

std::optional<Value> dateValue(std::string text) {
  if (const std::size_t blank = text.find(' '); blank != std::string::npos) text[blank] = 'T';
  const std::optional<Date> date = dateFromIso(text);
  return date ? std::optional<Value>(*date) : std::nullopt;
}

std::optional<Value> valueOf(const std::string& text, std::int32_t type,
                             const CaseFolding& folding) {
  switch (type) {
    case kBoolean:
      return booleanValue(text, folding);
    case kByte:
    case kInteger:
    case kLong:
      return numberValue<std::int32_t>(text);
    case kCurrency:
    case kSingle:
    case kDouble:
    case kDecimal:
      return numberValue<double>(text);
    case kDate:
      return dateValue(text);
    case kBinary:
    case kLongBinary:
      if (auto bytes = fromBase64(text)) return Value(*std::move(bytes));
      return std::nullopt;
    default:
      return Value(text);
  }
}

using Cells = std::vector<std::optional<std::string>>;

class Rows : public RowCursor {
 public:
  Rows(const FieldList& fields, const CodePage& codePage) : folding_(codePage) {
    for (const FieldModel& field : fields) types_.push_back(field.type);
  }

  bool next() override {
    cells_.assign(types_.size(), std::nullopt);
    return readRow(cells_);
  }
  Recorded<Value> cell(std::size_t field) const override {
    const std::optional<std::string>& text = cells_[field];
    if (!text) return Value(Value::Null{});
    if (auto value = valueOf(*text, types_[field], folding_)) return *std::move(value);
    return RecordedError{kErrConversion, "Data type conversion error."};
  }

 protected:
  // The position of the field, or how many there are.
  static std::size_t positionOf(const FieldList& fields, std::string_view name,
                                const CaseFolding& folding) {
    const auto found = std::ranges::find_if(
        fields, [&](const FieldModel& field) { return folding.equal(field.name, name); });
    return static_cast<std::size_t>(found - fields.begin());
  }
  const CaseFolding& folding() const { return folding_; }

  // Fills in the cells of the next row, false when there is none.
  virtual bool readRow(Cells& cells) = 0;

 private:
  CaseFolding folding_;
  std::vector<std::int32_t> types_;
  Cells cells_;
};

class LineRows : public Rows {
 public:
  LineRows(std::string text, const FieldList& fields, const CodePage& codePage)
      : Rows(fields, codePage), text_(std::move(text)) {
    separator_ =
        std::string_view(text_).substr(0, text_.find('\n')).find('\t') == std::string_view::npos &&
                text_.starts_with('"')
            ? ','
            : '\t';
    for (const auto& name : readCells())
      fields_.push_back(positionOf(fields, name.value_or(""), folding()));
  }

 private:
  bool readRow(Cells& cells) override {
    if (at_ >= text_.size()) return false;
    std::vector<std::optional<std::string>> read = readCells();
    for (std::size_t i = 0; i < read.size() && i < fields_.size(); ++i)
      if (fields_[i] < cells.size()) cells[fields_[i]] = std::move(read[i]);
    return true;
  }

  // One line; a text in quotes may go over several.
  std::vector<std::optional<std::string>> readCells() {
    std::vector<std::optional<std::string>> cells;
    bool more = at_ < text_.size();
    while (more) {
      cells.push_back(readCell());
      more = at_ < text_.size() && text_[at_] == separator_;
      if (more) ++at_;
    }
    if (at_ < text_.size() && text_[at_] == '\r') ++at_;
    if (at_ < text_.size() && text_[at_] == '\n') ++at_;
    return cells;
  }

  // None for a cell without anything.
  std::optional<std::string> readCell() {
    if (separator_ == ',' && at_ < text_.size() && text_[at_] == '"') return readQuoted();
    const char stops[] = {separator_, '\r', '\n'};
    const std::size_t end =
        std::min(text_.find_first_of(std::string_view(stops, sizeof stops), at_), text_.size());
    std::string cell = text_.substr(at_, end - at_);
    at_ = end;
    return cell.empty() ? std::nullopt : std::optional(std::move(cell));
  }

  // A quote inside is doubled.
  std::string readQuoted() {
    std::string cell;
    for (++at_; at_ < text_.size(); ++at_) {
      if (text_[at_] == '"' && !std::string_view(text_).substr(at_ + 1, 1).starts_with('"')) break;
      if (text_[at_] == '"') ++at_;
      cell += text_[at_];
    }
    at_ = std::min(at_ + 1, text_.size());
    const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
    at_ = end;
    return cell;
  }

  std::string text_;
  char separator_ = '\t';
  std::size_t at_ = 0;
  std::vector<std::size_t> fields_;  // of each column
};

class XmlRows : public Rows {
 public:
  XmlRows(const std::string& text, const FieldList& fields, const CodePage& codePage)
      : Rows(fields, codePage),
        fields_(fields),
        codePage_(codePage),
        root_(parseXml(text, codePage)) {
    data_ = root_.localName() == "dataroot" ? &root_ : root_.child("dataroot");
    if (data_ == nullptr) throw ExportTextError(1, "it holds no rows");
  }

 private:
  bool readRow(Cells& cells) override {
    if (at_ >= data_->children.size()) return false;
    for (const XmlElement& cell : data_->children[at_++].children) {
      const std::size_t field =
          positionOf(fields_, decodedXmlName(cell.name, codePage_), folding());
      if (field < cells.size()) cells[field] = cell.text;
    }
    return true;
  }

  FieldList fields_;
  CodePage codePage_;
  XmlElement root_;
  const XmlElement* data_ = nullptr;
  std::size_t at_ = 0;
};

}  // namespace

std::unique_ptr<RowCursor> exportedRows(std::string text, const FieldList& fields,
                                        const CodePage& codePage) {
  if (text.starts_with('<')) return std::make_unique<XmlRows>(text, fields, codePage);
  return std::make_unique<LineRows>(std::move(text), fields, codePage);
}

}  // namespace tarrowin::exports
