// Types of operators and functions, as the engine's expression service gives them.
#include "access/record_source/value_type.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "access/record_source/fold_name.h"

namespace tarrowin {
namespace {

// Where numbers stand among each other: the higher rank holds both. 0: no number.
int numberRank(int type) {
  switch (type) {
    case kTypeBoolean:
      return 1;
    case kTypeByte:
      return 2;
    case kTypeInteger:
      return 3;
    case kTypeLong:
      return 4;
    case kTypeBigInt:
      return 5;
    case kTypeCurrency:
      return 6;
    case kTypeDecimal:
      return 7;
    case kTypeSingle:
      return 8;
    case kTypeDouble:
      return 9;
    default:
      return 0;
  }
}

int higherNumber(int a, int b) {
  const int low = std::min(numberRank(a), numberRank(b));
  const int high = std::max(numberRank(a), numberRank(b));
  // A Single cannot hold what a Long, a Currency or a Decimal can.
  if (high == numberRank(kTypeSingle) && low >= numberRank(kTypeLong) && low != high) {
    return kTypeDouble;
  }
  return numberRank(a) >= numberRank(b) ? a : b;
}

enum class Rule {
  Fixed,        // the type of the entry
  First,        // that of the first argument
  FirstTwo,     // common to the first two: Nz
  SecondOn,     // common to all from the second: Choose
  LastTwo,      // common to the second and third: IIf
  EverySecond,  // common to the second, fourth...: Switch
  Total,        // sums and averages: Currency and Decimal stay, other numbers give Double
};

struct FunctionRule {
  Rule rule;
  int type = kTypeUnknown;
};

using RuleTable = std::unordered_map<std::string_view, FunctionRule>;

void addFixed(RuleTable& table, int type, std::initializer_list<std::string_view> names) {
  for (std::string_view name : names) table[name] = {Rule::Fixed, type};
}

RuleTable makeRules() {
  RuleTable table;
  addFixed(table, kTypeBoolean,
           {"cbool", "isnull", "isdate", "isnumeric", "isempty", "iserror", "isobject", "ismissing",
            "isarray"});
  addFixed(table, kTypeByte, {"cbyte"});
  addFixed(table, kTypeInteger,
           {"year", "month", "day", "hour", "minute", "second", "weekday", "datepart", "cint",
            "asc", "ascw", "sgn", "strcomp", "vartype"});
  addFixed(table, kTypeLong,
           {"count", "dcount", "len", "lenb", "instr", "instrrev", "clng", "rgb", "qbcolor",
            "datediff", "filelen"});
  addFixed(table, kTypeCurrency, {"ccur"});
  addFixed(table, kTypeSingle, {"csng", "rnd", "timer"});
  addFixed(table, kTypeDouble,
           {"val",    "cdbl", "sqr",  "exp",  "log",  "sin",    "cos",     "tan",  "atn",   "stdev",
            "stdevp", "var",  "varp", "dsum", "davg", "dstdev", "dstdevp", "dvar", "dvarp", "pmt",
            "ipmt",   "ppmt", "fv",   "pv",   "rate", "nper",   "npv",     "sln",  "syd",   "ddb"});
  addFixed(table, kTypeDate,
           {"date", "now", "time", "cdate", "cvdate", "dateadd", "dateserial", "datevalue",
            "timeserial", "timevalue", "filedatetime"});
  addFixed(table, kTypeText,
           {"left",
            "mid",
            "right",
            "trim",
            "ltrim",
            "rtrim",
            "ucase",
            "lcase",
            "format",
            "cstr",
            "chr",
            "chrw",
            "string",
            "space",
            "str",
            "replace",
            "strconv",
            "strreverse",
            "hex",
            "oct",
            "monthname",
            "weekdayname",
            "formatcurrency",
            "formatnumber",
            "formatpercent",
            "formatdatetime",
            "typename",
            "environ",
            "currentuser",
            "partition",
            "dlookup"});
  addFixed(table, kTypeDecimal, {"cdec"});
  for (std::string_view name : {"min", "max", "first", "last", "abs", "int", "fix", "round"}) {
    table[name] = {Rule::First};
  }
  table["nz"] = {Rule::FirstTwo};
  table["choose"] = {Rule::SecondOn};
  table["iif"] = {Rule::LastTwo};
  table["switch"] = {Rule::EverySecond};
  table["sum"] = {Rule::Total};
  table["avg"] = {Rule::Total};
  return table;
}

int commonOf(const std::vector<int>& types, std::size_t first, std::size_t end, std::size_t step) {
  int common = kTypeUnknown;
  for (std::size_t i = first; i < std::min(end, types.size()); i += step) {
    common = commonType(common, types[i]);
  }
  return common;
}

int totalType(int argument) {
  return argument == kTypeCurrency || argument == kTypeDecimal ? argument : kTypeDouble;
}

// The name without case and without the $ of the text functions.
std::string functionKey(std::string_view function) {
  if (!function.empty() && function.back() == '$') function.remove_suffix(1);
  return foldName(function);
}

}  // namespace

int sizeOfType(int type) {
  switch (type) {
    case kTypeBoolean:
    case kTypeByte:
      return 1;
    case kTypeInteger:
      return 2;
    case kTypeLong:
    case kTypeSingle:
      return 4;
    case kTypeCurrency:
    case kTypeDouble:
    case kTypeDate:
    case kTypeBigInt:
      return 8;
    case kTypeGuid:
    case kTypeDecimal:
      return 16;
    case kTypeBinary:
    case kTypeText:
      return 255;
    default:
      return 0;
  }
}

int commonType(int a, int b) {
  if (a == b || b == kTypeUnknown) return a;
  if (a == kTypeUnknown) return b;
  if (numberRank(a) > 0 && numberRank(b) > 0) return higherNumber(a, b);
  if (a == kTypeOle || b == kTypeOle) return kTypeOle;
  return a == kTypeMemo || b == kTypeMemo ? kTypeMemo : kTypeText;
}

int arithmeticType(std::string_view op, int a, int b) {
  if (op == "/" || op == "^") return kTypeDouble;
  if (op == "\\" || op == "MOD") return kTypeLong;
  const bool aDate = a == kTypeDate;
  const bool bDate = b == kTypeDate;
  if (aDate && bDate) return op == "-" ? kTypeDouble : kTypeDate;
  if ((aDate || bDate) && op != "*") return kTypeDate;
  const auto isText = [](int type) { return type == kTypeText || type == kTypeMemo; };
  if (op == "+" && (isText(a) || isText(b)) && numberRank(a) == 0 && numberRank(b) == 0) {
    return commonType(a, b);
  }
  if (a == kTypeUnknown && b == kTypeUnknown) return kTypeUnknown;
  const auto asNumber = [](int type, int other) {
    if (type == kTypeBoolean) return kTypeInteger;  // True counts as -1
    if (type == kTypeUnknown && numberRank(other) > 0) return other;
    return numberRank(type) > 0 ? type : kTypeDouble;
  };
  return higherNumber(asNumber(a, b), asNumber(b, a));
}

bool isAggregate(std::string_view function) {
  static constexpr std::string_view kAggregates[] = {
      "COUNT", "SUM", "AVG", "MIN", "MAX", "FIRST", "LAST", "STDEV", "STDEVP", "VAR", "VARP"};
  return std::any_of(std::begin(kAggregates), std::end(kAggregates),
                     [&](std::string_view name) { return equalsWord(function, name); });
}

int functionType(std::string_view function, const std::vector<int>& arguments) {
  static const RuleTable kRules = makeRules();
  const auto found = kRules.find(functionKey(function));
  if (found == kRules.end()) return kTypeUnknown;
  const int first = arguments.empty() ? kTypeUnknown : arguments.front();
  switch (found->second.rule) {
    case Rule::Fixed:
      return found->second.type;
    case Rule::First:
      return first;
    case Rule::FirstTwo:
      return commonOf(arguments, 0, 2, 1);
    case Rule::SecondOn:
      return commonOf(arguments, 1, arguments.size(), 1);
    case Rule::LastTwo:
      return commonOf(arguments, 1, 3, 1);
    case Rule::EverySecond:
      return commonOf(arguments, 1, arguments.size(), 2);
    case Rule::Total:
      return totalType(first);
  }
  return kTypeUnknown;
}

}  // namespace tarrowin
