// The mapping table, and how a row of it is found and written.
#include "codeconv/do_cmd_mapping.h"

#include <algorithm>

#include "shared/text_procedures.h"
#include "shared/vb_text.h"

namespace tarrowin {

namespace {

using enum DoCmdCondition;

constexpr std::string_view kDoCmd = "DoCmd.";
constexpr std::string_view kLinePlace = "{L}", kNamePlace = "{M}";

// clang-format off
constexpr DoCmdRow kRows[] = {
    // method        condition   first line in modules                        first line in forms                          second, modules  second, forms
    {"Beep",         kAlways,    "Beep ' {L}",                                "Beep ' {L}",                                kNoLine,         kNoLine},
    {"Close",        kCommented, "{L}",                                       "{L}",                                       kNoLine,         "Unload Me '{L}"},
    {"Close",        kNamed,     "UnLoad {M} ' {L}",                          "UnLoad {M} ' {L}",                          kNoLine,         "Unload Me '{L}"},
    {"Close",        kUnnamed,   "' {L}",                                     "' {L}",                                     kNoLine,         "Unload Me '{L}"},
    {"GotoControl",  kCommented, "{L}",                                       "{L}",                                       kNoLine,         kNoLine},
    {"GotoControl",  kNamed,     "{M}.SetFocus   ' {L}",                      "{M}.SetFocus   ' {L}",                      kNoLine,         kNoLine},
    {"GotoControl",  kUnnamed,   "' {L}",                                     "' {L}",                                     kNoLine,         kNoLine},
    {"HourGlass",    kHoldsTrue, "Screen.MousePointer = vbHourGlass ' {L}",   "Screen.MousePointer = vbHourGlass ' {L}",   kNoLine,         kNoLine},
    {"HourGlass",    kAlways,    "Screen.MousePointer = vbDefault ' {L}",     "Screen.MousePointer = vbDefault ' {L}",     kNoLine,         kNoLine},
    {"OpenForm",     kCommented, kNoLine,                                     kNoLine,                                     kNoLine,         kNoLine},
    {"OpenForm",     kNamed,     "{M}.Show ' {L}",                            "{M}.Show ' {L}",                            kNoLine,         kNoLine},
    {"OpenForm",     kUnnamed,   "' {L}",                                     "' {L}",                                     kNoLine,         kNoLine},
    {"Requery",      kCommented, "{L}",                                       "{L}",                                       "End '{L}",      "End '{L}"},
    {"Requery",      kNamed,     "{M}.Requery   ' {L}",                       "{M}.Refresh   ' {L}",                       "End '{L}",      "End '{L}"},
    {"Requery",      kUnnamed,   "' {L}",                                     "' {L}",                                     "End '{L}",      "End '{L}"},
    {kAnyMethod,     kAlways,    "' {L}",                                     "' {L}",                                     kNoLine,         kNoLine},
};
// clang-format on

// A line that holds "DoCmd.", in the three shapes that the rows speak of.
struct DoCmdLine {
  std::string_view source;
  std::string trimmed;
  std::string quoted;  // its first quoted text
};

bool holds(DoCmdCondition condition, const DoCmdLine& line) {
  switch (condition) {
    case kAlways:
      return true;
    case kCommented:
      return line.trimmed.starts_with('\'');
    case kNamed:
      return !line.quoted.empty();
    case kUnnamed:
      return line.quoted.empty();
    case kHoldsTrue:
      return line.source.find("True") != std::string_view::npos;
  }
  return false;
}

const DoCmdRow& rowFor(std::string_view method, const DoCmdLine& line) {
  return *std::ranges::find_if(kRows, [&](const DoCmdRow& row) {
    return (row.method == method || row.method == kAnyMethod) && holds(row.condition, line);
  });
}

std::string filledIn(std::string_view pattern, std::string_view line, std::string_view name) {
  std::string text;
  text.reserve(pattern.size() + line.size() + name.size());
  while (!pattern.empty()) {
    if (pattern.starts_with(kLinePlace)) {
      text += line;
      pattern.remove_prefix(kLinePlace.size());
    } else if (pattern.starts_with(kNamePlace)) {
      text += name;
      pattern.remove_prefix(kNamePlace.size());
    } else {
      text += pattern.front();
      pattern.remove_prefix(1);
    }
  }
  return text;
}

}  // namespace

std::span<const DoCmdRow> doCmdRows() { return kRows; }

std::string ExtractDoCmdMethod(std::string_view text) {
  const std::int32_t start = InStr(text, kDoCmd);
  if (start == 0) return {};
  const std::int32_t dot = start + static_cast<std::int32_t>(kDoCmd.size()) - 1;
  const std::int32_t blank = InStr(text, " ");
  if (blank < dot) return std::string(text);
  return Mid(text, dot + 1, blank - dot - 1);
}

void convertDoCmdLine(CodeKind kind, std::string_view line, std::string& strDoCmdMethod,
                      const PrintLine& print) {
  const std::string trimmed = Trim(line);
  const DoCmdLine source{line, trimmed, FirstQuotedText(trimmed)};
  const std::string name = MakeVBName(std::string(source.quoted));
  strDoCmdMethod = ExtractDoCmdMethod(trimmed);
  const DoCmdRow& row = rowFor(strDoCmdMethod, source);
  const bool inModule = kind == CodeKind::kModule;
  const auto write = [&](std::string_view pattern) {
    if (pattern != kNoLine) print(filledIn(pattern, line, name));
  };
  write(inModule ? row.moduleLine : row.formLine);
  write(inModule ? row.secondModuleLine : row.secondFormLine);
}

}  // namespace tarrowin
