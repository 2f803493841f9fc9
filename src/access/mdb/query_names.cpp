// Names inside SQL text: when a name needs square brackets, and a name with them.
// The scripts are told apart by blocks of Unicode, which suffices: a needless bracket does no harm.
#include "access/mdb/query_names.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarrowin::mdb {
namespace {

constexpr char32_t kMalformed = 0xFFFFFFFF;

// The character that begins at the position, which moves behind it.
char32_t nextCharacter(std::string_view text, std::size_t& position) {
  const auto lead = static_cast<unsigned char>(text[position++]);
  if (lead < 0x80) return lead;
  const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : 0;
  if (following == 0 || lead > 0xF4) return kMalformed;
  char32_t character = lead & (0x3Fu >> following);
  for (int i = 0; i < following; ++i) {
    if (position == text.size()) return kMalformed;
    const auto byte = static_cast<unsigned char>(text[position++]);
    if ((byte & 0xC0) != 0x80) return kMalformed;
    character = character << 6 | (byte & 0x3Fu);
  }
  return character;
}

struct CharacterRange {
  char32_t first;
  char32_t last;
};

constexpr std::array kLetters = {
    CharacterRange{'A', 'Z'},       CharacterRange{'_', '_'},
    CharacterRange{'a', 'z'},       CharacterRange{0xAA, 0xAA},
    CharacterRange{0xB5, 0xB5},     CharacterRange{0xBA, 0xBA},
    CharacterRange{0xC0, 0xD6},     CharacterRange{0xD8, 0xF6},
    CharacterRange{0xF8, 0x1FFF},    // Latin, Greek, Cyrillic ... without the signs D7, F7
    CharacterRange{0x2C00, 0x2DFF},  // behind general punctuation, arrows and signs
    CharacterRange{0x3005, 0x3007}, CharacterRange{0x3041, 0x31FF},
    CharacterRange{0x3400, 0xD7A3}, CharacterRange{0xF900, 0xFDFF},
    CharacterRange{0xFE70, 0xFEFC}, CharacterRange{0xFF10, 0xFF19},
    CharacterRange{0xFF21, 0xFF3A}, CharacterRange{0xFF41, 0xFF5A},
    CharacterRange{0xFF66, 0xFFDC}, CharacterRange{0x10000, 0x10FFFF},
};

bool isLetter(char32_t character) {
  return std::ranges::any_of(kLetters, [character](CharacterRange range) {
    return range.first <= character && character <= range.last;
  });
}

bool isDigit(char32_t character) { return '0' <= character && character <= '9'; }

}  // namespace

bool isPlainName(std::string_view name) {
  if (name.empty() || isDigit(static_cast<unsigned char>(name.front()))) return false;
  for (std::size_t position = 0; position < name.size();) {
    const char32_t character = nextCharacter(name, position);
    if (!isLetter(character) && !isDigit(character)) return false;
  }
  return true;
}

std::string bracketedName(std::string_view name) {
  if (name.empty() || isPlainName(name) || name.find('[') != std::string_view::npos) {
    return std::string(name);
  }
  return "[" + std::string(name) + "]";
}

std::string bracketedField(std::string_view field) {
  if (field.find('[') != std::string_view::npos) return std::string(field);
  std::string text;
  std::size_t begin = 0;
  for (std::size_t dot; (dot = field.find('.', begin)) != std::string_view::npos; begin = dot + 1) {
    text += bracketedName(field.substr(begin, dot - begin)) + ".";
  }
  return text + bracketedName(field.substr(begin));
}

}  // namespace tarrowin::mdb
