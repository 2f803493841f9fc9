// Names of functions for the macros of a module: identifiers that Visual Basic accepts, each once.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace tarrowin {

// Letters, with those of the codes 192 to 255 but the signs of multiplication and division.
bool isVbLetter(char character);
// A letter, a digit or "_".
bool isVbNameCharacter(char character);
// A word that can name nothing. Letters compare without regard to case.
bool isVbReserved(std::string_view word);
// A letter, then letters, digits and "_", and no reserved word.
bool isVbIdentifier(std::string_view word);

// A name as identifier: every other character becomes "_", a first one that is no letter gets an
// "x" before it, a reserved word, or one that the statements of such a module use, a "_" behind it.
// Cut so that the labels made of it still fit.
std::string vbIdentifier(std::string_view name);

// Gives each name once, without regard to case.
class UniqueNames {
 public:
  // The name will not be given.
  void reserve(std::string_view name);
  // The name itself, or with the first number from 2 on that makes it a new one.
  std::string unique(const std::string& name);

 private:
  std::unordered_map<std::string, int> taken_;  // in lower case; the last number tried
};

}  // namespace tarrowin
