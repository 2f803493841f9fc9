// The actions of macros: their numbers in a database file, their arguments, and the statement of
// Visual Basic that does the same.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace tarrowin {

enum class ArgumentKind {
  kNone,        // the action has no argument at that position
  kText,        // a text, "" when it is empty
  kLaterText,   // a text that not every version of Access has; left out when it is empty
  kExpression,  // an expression of Access, with or without a leading "="
  kTarget,      // the name of what is assigned to
  kCall,        // the call of a function
  kChoice,      // one of a pull-down list, kept as its number; left out when it is empty
  kYesNo,       // -1 or 0; left out when it is empty
  kNumber,      // left out when it is empty
};

// An entry of a pull-down list and its constant. Without a constant it is what the method does when
// the argument is left out.
struct ActionChoice {
  std::int32_t number;
  std::string_view constant;
};

struct ActionArgument {
  ArgumentKind kind = ArgumentKind::kNone;
  std::span<const ActionChoice> choices = {};
};

struct ActionRow {
  std::uint16_t code;     // in the file of a database
  std::string_view name;  // in English, as text exports and recordings have it
  // Lines with places for arguments: {1} is the first one, {*} all of them with commas between. A
  // line that begins with {2?} is written only when the second one is Yes.
  std::string_view statement;
  ActionArgument arguments[10];

  std::size_t argumentCount() const;
};

std::span<const ActionRow> actionRows();

// The row of a name, without regard to case, or of a code; nullptr when there is none.
const ActionRow* findAction(std::string_view name);
const ActionRow* findAction(std::uint16_t code);

}  // namespace tarrowin
