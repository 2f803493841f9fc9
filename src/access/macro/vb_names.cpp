// Identifiers and reserved words.
// See vb_names.h.
#include "access/macro/vb_names.h"

#include <algorithm>

#include "shared/vb_text.h"

namespace tarrowin {

namespace {

// Visual Basic takes names of 255 characters; room is left for "_Exit" and a number.
constexpr std::size_t kMaximumLength = 200;

// The keywords of Visual Basic in lower case, in order.
constexpr std::string_view kReserved[] = {
    "abs",       "addressof", "alias",      "and",        "any",        "array",    "as",
    "attribute", "boolean",   "byref",      "byte",       "byval",      "call",     "case",
    "cbool",     "cbyte",     "ccur",       "cdate",      "cdbl",       "cdec",     "cint",
    "circle",    "clng",      "close",      "const",      "csng",       "cstr",     "currency",
    "cvar",      "cverr",     "date",       "debug",      "declare",    "defbool",  "defbyte",
    "defcur",    "defdate",   "defdbl",     "defdec",     "defint",     "deflng",   "defobj",
    "defsng",    "defstr",    "defvar",     "dim",        "do",         "doevents", "double",
    "each",      "else",      "elseif",     "empty",      "end",        "endif",    "enum",
    "eqv",       "erase",     "error",      "event",      "exit",       "false",    "fix",
    "for",       "friend",    "function",   "get",        "global",     "gosub",    "goto",
    "if",        "imp",       "implements", "in",         "input",      "inputb",   "instr",
    "instrb",    "int",       "integer",    "is",         "lbound",     "len",      "lenb",
    "let",       "like",      "line",       "local",      "lock",       "long",     "loop",
    "lset",      "me",        "mid",        "midb",       "mod",        "name",     "new",
    "next",      "not",       "nothing",    "null",       "object",     "on",       "open",
    "option",    "optional",  "or",         "paramarray", "preserve",   "print",    "private",
    "property",  "pset",      "public",     "put",        "raiseevent", "redim",    "rem",
    "resume",    "return",    "rset",       "scale",      "seek",       "select",   "set",
    "sgn",       "shared",    "single",     "spc",        "static",     "step",     "stop",
    "strcomp",   "string",    "sub",        "tab",        "then",       "time",     "to",
    "true",      "type",      "typeof",     "ubound",     "unlock",     "until",    "variant",
    "wend",      "while",     "width",      "with",       "withevents", "write",    "xor"};
static_assert(std::ranges::is_sorted(kReserved));

// A function of one of these names would be called in the place of what the statements mean.
constexpr std::string_view kUsed[] = {"beep",  "chr",    "codecontextobject", "docmd",  "eval",
                                      "forms", "msgbox", "reports",           "screen", "sendkeys",
                                      "shell"};

}  // namespace

bool isVbLetter(char character) {
  const auto code = static_cast<unsigned char>(character);
  return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z') ||
         (code >= 192 && code != 215 && code != 247);
}

bool isVbNameCharacter(char character) {
  return isVbLetter(character) || (character >= '0' && character <= '9') || character == '_';
}

bool isVbReserved(std::string_view word) {
  return std::ranges::binary_search(kReserved, std::string_view(LCase(word)));
}

bool isVbIdentifier(std::string_view word) {
  return !word.empty() && isVbLetter(word.front()) &&
         std::ranges::all_of(word, isVbNameCharacter) && !isVbReserved(word);
}

std::string vbIdentifier(std::string_view name) {
  std::string identifier(name.substr(0, kMaximumLength));
  for (char& character : identifier)
    if (!isVbNameCharacter(character)) character = '_';
  if (identifier.empty() || !isVbLetter(identifier.front())) identifier.insert(0, 1, 'x');
  if (isVbReserved(identifier) || std::ranges::count(kUsed, std::string_view(LCase(identifier))))
    identifier += '_';
  return identifier;
}

void UniqueNames::reserve(std::string_view name) { taken_.try_emplace(LCase(name), 1); }

std::string UniqueNames::unique(const std::string& name) {
  const auto [entry, isNew] = taken_.try_emplace(LCase(name), 1);
  if (isNew) return name;
  std::string numbered;
  int& number = entry->second;
  do {
    numbered = name + std::to_string(++number);
  } while (taken_.contains(LCase(numbered)));
  taken_.emplace(LCase(numbered), 1);
  return numbered;
}

}  // namespace tarrowin
