// The rule table and its tests.
#include "codeconv/code_rules.h"

namespace tarrowin {

namespace {

using enum LineTest;
using enum LineAction;

// clang-format off
constexpr CodeRule kRules[] = {
    // test        text                       but not         in modules            in forms
    {kEmpty,       "",                        "",             kDrop,                kDrop},
    {kStartsWith,  "Option Compare Database", "",             kDrop,                kDrop},
    {kStartsWith,  "VERSION 1.0 CLASS",       "",             kNotListed,           kDrop},
    {kStartsWith,  "BEGIN",                   "",             kNotListed,           kDrop},
    {kStartsWith,  "Attribute",               "",             kDrop,                kDrop},
    {kStartsWith,  "  MultiUse",              "",             kNotListed,           kDrop},
    {kTrimmedIs,   "END",                     "",             kNotListed,           kDrop},
    {kStartsWith,  "Option Explicit",         "",             kKeep,                kKeep},
    {kContains,    "= CurrentDb",             "= CurrentDb.", kOpenDatabase3Blanks, kOpenDatabase1Blank},
    {kContains,    "= CurrentDb.",            "",             kComment,             kComment},
    {kContains,    "CloseCurrentDatabase",    "",             kComment,             kComment},
    {kContains,    "NewCurrentDatabase",      "",             kComment,             kComment},
    {kContains,    "OpenCurrentDatabase",     "",             kComment,             kComment},
    {kContains,    "SysCmd(",                 "If",           kComment,             kComment},
    {kContains,    "As Recordset",            "",             kComment,             kComment},
    {kContains,    "OpenRecordset",           "",             kComment,             kComment},
    {kContains,    "CreateQueryDef",          "",             kComment,             kComment},
    {kContains,    "Delete",                  "",             kComment,             kComment},
    {kContains,    "Execute",                 "",             kComment,             kComment},
    {kContains,    "Me.",                     "",             kKeepAndDotted,       kKeepDottedAndComment},
    {kContains,    "Reports!",                "",             kCommentTwice,        kNotListed},
    {kContains,    "DoCmd.",                  "",             kDoCmd,               kDoCmd},
    {kStartsWith,  "Private Sub Form_Load(",  "",             kNotListed,           kFormLoad},
    {kStartsWith,  "Private Sub Form_Open(",  "",             kNotListed,           kFormOpen},
    {kContains,    "_DblClick(Cancel",        "",             kNotListed,           kDoubleClick},
    {kIs,          "End Function",            "",             kKeepAndBlank,        kKeepAndBlank},
    {kIs,          "End Sub",                 "",             kKeepAndBlank,        kKeepAndBlank},
};
// clang-format on

bool contains(std::string_view line, std::string_view text) {
  return line.find(text) != std::string_view::npos;
}

std::string_view trimmed(std::string_view line) {
  const std::size_t first = line.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(' ') - first + 1);
}

bool passes(const CodeRule& rule, std::string_view line) {
  switch (rule.test) {
    case kEmpty:
      return line.empty();
    case kStartsWith:
      return line.starts_with(rule.text);
    case kIs:
      return line == rule.text;
    case kTrimmedIs:
      return trimmed(line) == rule.text;
    case kContains:
      return contains(line, rule.text);
  }
  return false;
}

}  // namespace

std::span<const CodeRule> codeRules() { return kRules; }

bool matches(const CodeRule& rule, std::string_view line) {
  return passes(rule, line) && (rule.butNot.empty() || !contains(line, rule.butNot));
}

}  // namespace tarrowin
