// Forms of labels with text boxes, combo boxes, check boxes and buttons, each form's design in long
// values of the table MSysAccessStorage.
// See design_database.h.
#include "design_database.h"

#include <algorithm>
#include <fstream>
#include <string_view>
#include <utility>
#include <vector>

#include "design_blob/blob_builder.h"
#include "mdb/file_builder.h"

namespace tarrowin {
namespace {

using mdb::Cell;
using mdb::join;
using mdb::le16;
using mdb::le32;

// Types of objects.
constexpr std::uint16_t kLabel = 100, kCommandButton = 104, kCheckBox = 106, kTextBox = 109,
                        kComboBox = 111, kForm = 150, kDetail = 152, kFormHeader = 153,
                        kFormFooter = 154;
constexpr std::size_t kComboBoxes = 3, kCheckBoxes = 3, kButtons = 2;
// All but the buttons have a label of their own.
constexpr std::size_t kTextBoxes = (kControlsOfEachForm - kButtons) / 2 - kComboBoxes - kCheckBoxes;

constexpr int kFormObject = -32768;  // in the catalog
constexpr std::uint32_t kSystemTable = 0x80000000u;
constexpr std::int32_t kFirstObjectId = 1000;

// Numbers of the rows of MSysAccessStorage, and what they are.
constexpr std::uint32_t kRoot = 1, kForms = 2, kNames = 3, kFirstFolder = 10;
constexpr std::uint32_t kFolder = 1, kStream = 2;

constexpr std::size_t kLongestInRow = 64;

std::u16string wide(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

std::int16_t left(bool isLabel) { return isLabel ? 120 : 1800; }
std::int16_t top(std::size_t line) { return static_cast<std::int16_t>(60 + 300 * line); }

BuiltObject label(const std::string& name, std::size_t line) {
  return {kLabel,
          {byteValue(53, 85), integerValue(96, left(true)), integerValue(97, top(line)),
           integerValue(98, 1560), integerValue(99, 240), textValue(220, wide(name + "_Label")),
           textValue(221, wide(name + ":"))},
          {}};
}

BuiltObject textBox(const std::string& name, std::size_t line) {
  const auto number = static_cast<std::int16_t>(line);
  return {kTextBox,
          {byteValue(55, 85), integerValue(96, left(false)), integerValue(97, top(line)),
           integerValue(98, 2400), integerValue(99, 240), integerValue(107, number),
           textValue(220, wide(name)), textValue(221, wide(name))},
          {label(name, line)}};
}

BuiltObject comboBox(const std::string& name, std::size_t line) {
  const auto number = static_cast<std::int16_t>(line);
  return {kComboBox,
          {byteValue(53, 85), integerValue(96, 2), integerValue(99, left(false)),
           integerValue(100, top(line)), integerValue(101, 2400), integerValue(102, 240),
           integerValue(110, number), textValue(220, wide(name)), textValue(221, wide(name)),
           textValue(223, u"SELECT CustomerID, CompanyName FROM Customers;"),
           textValue(224, u"0;2880")},
          {label(name, line)}};
}

BuiltObject checkBox(const std::string& name, std::size_t line) {
  const auto number = static_cast<std::int16_t>(line);
  return {kCheckBox,
          {byteValue(50, 85), integerValue(96, left(false)), integerValue(97, top(line)),
           integerValue(105, number), textValue(220, wide(name)), textValue(221, wide(name))},
          {label(name, line)}};
}

BuiltObject button(const std::string& name, std::size_t line) {
  return {kCommandButton,
          {byteValue(49, 85), integerValue(96, 120), integerValue(97, top(line)),
           integerValue(98, 1440), integerValue(99, 360), textValue(220, wide(name)),
           textValue(221, u"&Close"), textValue(223, u"[Event Procedure]")},
          {}};
}

// Fonts and colours that the controls have in common.
std::vector<BuiltObject> styles() {
  return {{kLabel,
           {byteValue(50, 0), integerValue(100, 8), longValue(158, 0), textValue(222, u"Tahoma")},
           {}},
          {kCommandButton, {integerValue(103, 8), textValue(228, u"Tahoma")}, {}},
          {kCheckBox, {byteValue(49, 2), integerValue(98, 240), integerValue(99, 240)}, {}},
          {kTextBox, {byteValue(52, 2), integerValue(105, 8), textValue(232, u"Tahoma")}, {}},
          {kComboBox, {byteValue(50, 2), integerValue(108, 8), textValue(234, u"Tahoma")}, {}}};
}

BuiltObject section(std::uint16_t type, std::int16_t height, std::u16string_view name,
                    std::vector<BuiltObject> controls = {}) {
  return {type,
          {integerValue(96, height), longValue(156, 12632256), textValue(223, name)},
          std::move(controls)};
}

BuiltObject form(std::size_t number) {
  const auto add = [](std::vector<BuiltObject>& controls, std::size_t count, const char* name,
                      BuiltObject (*made)(const std::string&, std::size_t)) {
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t line = controls.size();
      controls.push_back(made(name + std::to_string(line), line));
    }
  };
  std::vector<BuiltObject> controls;
  add(controls, kTextBoxes, "Field", textBox);
  add(controls, kComboBoxes, "Choice", comboBox);
  add(controls, kCheckBoxes, "Done", checkBox);
  add(controls, kButtons, "Close", button);
  BuiltObject form{
      kForm,
      {byteValue(48, 0), integerValue(97, 24), integerValue(99, 5000), textValue(220, u"Orders"),
       textValue(221, wide("Form " + std::to_string(number)))},
      styles()};
  form.inside.push_back(section(kFormHeader, 360, u"FormHeader"));
  form.inside.push_back(section(kDetail, top(controls.size()), u"Detail", std::move(controls)));
  form.inside.push_back(section(kFormFooter, 0, u"FormFooter"));
  return form;
}

class Builder {
 public:
  explicit Builder(const FormDatabase& database) : database_(database) {}

  Bytes build() {
    addFolder(kRoot, kRoot, "MSysAccessStorage_ROOT");
    addFolder(kForms, kRoot, "Forms");
    addStream(kNames, kForms,
              "\x03"
              "DirData",
              folderNames());
    std::uint32_t id = kFirstFolder;
    for (std::size_t number = 0; number < database_.forms; ++number) {
      const std::uint32_t folder = id++;
      addFolder(folder, kForms, std::to_string(number));
      addStream(id++, folder, "Blob", designBlob(database_.designVersion, form(number)));
      addStream(id++, folder, "PropData", join({le32(0), Bytes{2}, le32(1), le32(0)}));
    }
    file_.addTable(
        "MSysAccessStorage",
        {{"Id", 4, 4}, {"ParentId", 4, 4}, {"Type", 4, 4}, {"Name", 10, 128}, {"Lv", 11}}, rows_,
        kSystemTable);
    file_.addObject(kFirstObjectId, "MSysDb", 2, 0, accessVersion());
    for (std::size_t number = 0; number < database_.forms; ++number)
      file_.addObject(kFirstObjectId + 1 + static_cast<std::int32_t>(number), nameOf(number),
                      kFormObject);
    return file_.build();
  }

 private:
  static std::string nameOf(std::size_t number) {
    return "Orders of month " + std::to_string(number);
  }

  Bytes folderNames() const {
    Bytes all = le32(0);
    for (std::size_t number = 0; number < database_.forms; ++number) {
      const Bytes name = file_.text(nameOf(number));
      all = append(std::move(all), Bytes{4, static_cast<std::uint8_t>(name.size() + 4)});
      all = append(std::move(all), name);
      all = append(std::move(all), le32(static_cast<std::uint32_t>(number)));
    }
    return all;
  }
  static Bytes append(Bytes bytes, const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
    return bytes;
  }

  // The property AccessVersion: of Access 2002.
  Bytes accessVersion() const {
    const auto sized = [](const Bytes& bytes) {
      return join({le16(static_cast<std::uint32_t>(bytes.size())), bytes});
    };
    const auto block = [](std::uint32_t kind, const Bytes& body) {
      return join({le32(static_cast<std::uint32_t>(body.size() + 6)), le16(kind), body});
    };
    const Bytes value = file_.text("09.50");
    const Bytes record = join(
        {le16(static_cast<std::uint32_t>(value.size() + 8)), Bytes{0, 10}, le16(0), sized(value)});
    return join({Bytes{'M', 'R', '2', 0}, block(0x80, sized(file_.text("AccessVersion"))),
                 block(0, join({le32(6), le16(0), record}))});
  }

  void addFolder(std::uint32_t id, std::uint32_t parent, const std::string& name) {
    rows_.push_back({le32(id), le32(parent), le32(kFolder), file_.text(name), {}});
  }
  void addStream(std::uint32_t id, std::uint32_t parent, const std::string& name,
                 const Bytes& bytes) {
    rows_.push_back({le32(id), le32(parent), le32(kStream), file_.text(name), longValueOf(bytes)});
  }

  // In the row, on a page, or on as many as it takes.
  Cell longValueOf(const Bytes& bytes) {
    const std::size_t room = file_.format().pageSize - file_.format().dataRowCount - 4;
    constexpr std::size_t kNextPiece = 4;
    if (bytes.size() <= kLongestInRow) return file_.longInRow(bytes);
    if (bytes.size() <= room) return file_.longOnePage(bytes);
    std::vector<Bytes> pieces;
    for (std::size_t at = 0; at < bytes.size(); at += pieces.back().size()) {
      const std::size_t end = std::min(bytes.size(), at + room - kNextPiece);
      pieces.emplace_back(bytes.begin() + static_cast<std::ptrdiff_t>(at),
                          bytes.begin() + static_cast<std::ptrdiff_t>(end));
    }
    return file_.longChain(pieces);
  }

  const FormDatabase& database_;
  mdb::FileBuilder file_{false};
  std::vector<std::vector<Cell>> rows_;
};

}  // namespace

std::size_t writeFormDatabase(const std::string& path, const FormDatabase& database) {
  const Bytes bytes = Builder(database).build();
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  return bytes.size();
}

}  // namespace tarrowin
