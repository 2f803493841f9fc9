// Reads the forms of numbers that Visual Basic accepts in a text, and prints doubles its way.
#include "shared/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "shared/vb_error.h"
#include "shared/vb_number.h"

namespace tarrowin {

namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }
bool isSpace(char character) { return character == ' ' || character == '\t'; }

char upper(char character) {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                              : character;
}

// Value of a digit of base 16; 16 for what is none.
int digitValue(char character) {
  if (isDigit(character)) return character - '0';
  const char letter = upper(character);
  return letter >= 'A' && letter <= 'F' ? letter - 'A' + 10 : 16;
}

std::string_view withoutSpace(std::string_view text) {
  while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
  return text;
}

bool takeFront(std::string_view& text, char character) {
  if (text.empty() || text.front() != character) return false;
  text.remove_prefix(1);
  return true;
}

// The digits behind "&H", "&O" or "&".
std::optional<ParsedNumber> parseRadix(std::string_view text) {
  unsigned base = 8;
  if (!text.empty() && (upper(text.front()) == 'H' || upper(text.front()) == 'O')) {
    if (upper(text.front()) == 'H') base = 16;
    text.remove_prefix(1);
  }
  if (text.empty()) return std::nullopt;
  std::uint64_t bits = 0;
  for (const char character : text) {
    const auto digit = static_cast<unsigned>(digitValue(character));
    if (digit >= base) return std::nullopt;
    if (bits > (std::numeric_limits<std::uint64_t>::max() - digit) / base) raise(kErrOverflow);
    bits = bits * base + digit;
  }
  return ParsedNumber{static_cast<double>(bits), bits};
}

// A plain decimal number's parts, ready for from_chars.
struct Decimal {
  std::string digits;            // of the whole part and, behind a point, the fraction
  std::string exponent;          // with its sign, empty for none
  bool hasDigits = false;        // at least one digit before or behind the point
  bool sawNonZero = false;       // so that the value is not 0
  std::ptrdiff_t magnitude = 0;  // digits before the point, less leading zeros
};

void addDigit(Decimal& decimal, char digit) {
  decimal.digits += digit;
  decimal.hasDigits = true;
  if (digit != '0') decimal.sawNonZero = true;
}

// Takes the digits, point and exponent off the front of the text. A comma counts only where
// group marks are allowed, behind a digit.
Decimal takeDecimal(std::string_view& text, bool allowGroups) {
  Decimal decimal;
  while (!text.empty()) {
    const char character = text.front();
    if (isDigit(character)) {
      addDigit(decimal, character);
      if (decimal.sawNonZero) ++decimal.magnitude;
    } else if (!(allowGroups && character == ',' && decimal.hasDigits)) {
      break;
    }
    text.remove_prefix(1);
  }
  if (takeFront(text, '.')) {
    decimal.digits += '.';
    while (!text.empty() && isDigit(text.front())) {
      addDigit(decimal, text.front());
      text.remove_prefix(1);
    }
  }
  if (!decimal.hasDigits || text.empty()) return decimal;
  if (upper(text.front()) != 'E' && upper(text.front()) != 'D') return decimal;

  std::size_t index = 1;
  std::string exponent;
  if (index < text.size() && (text[index] == '-' || text[index] == '+')) {
    if (text[index] == '-') exponent = "-";
    ++index;
  }
  const std::size_t firstDigit = index;
  while (index < text.size() && isDigit(text[index])) exponent += text[index++];
  if (index == firstDigit) return decimal;
  decimal.exponent = exponent;
  text.remove_prefix(index);
  return decimal;
}

// Raises 6 for a number beyond a double; one too small for it is 0.
double valueOf(const Decimal& decimal) {
  std::string plain = decimal.digits;
  if (!decimal.exponent.empty()) plain += 'e' + decimal.exponent;
  double value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (error == std::errc{}) return value;
  if (!decimal.sawNonZero) return 0;

  // from_chars tells "out of range" for too large and too small alike.
  std::int64_t exponent = 0;
  const auto& digits = decimal.exponent;
  const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
  const bool large = parsed.ec == std::errc::result_out_of_range ? digits.front() != '-'
                                                                 : decimal.magnitude + exponent > 0;
  if (large) raise(kErrOverflow);
  return 0;
}

template <typename Integer, typename Unsigned>
Integer wrapped(std::uint64_t bits) {
  if (bits > std::numeric_limits<Unsigned>::max()) raise(kErrOverflow);
  return static_cast<Integer>(static_cast<Unsigned>(bits));
}

}  // namespace

std::optional<ParsedNumber> parseNumber(std::string_view text) {
  std::string_view rest = withoutSpace(text);
  if (takeFront(rest, '&')) return parseRadix(rest);

  bool negative = false;
  bool signSeen = false;
  bool parenthesis = false;
  bool currencySeen = false;
  while (!rest.empty()) {
    const char character = rest.front();
    if ((character == '-' || character == '+') && !signSeen && !parenthesis) {
      signSeen = true;
      negative = character == '-';
    } else if (character == '(' && !signSeen && !parenthesis) {
      parenthesis = negative = true;
    } else if (character == '$' && !currencySeen) {
      currencySeen = true;
    } else if (!isSpace(character)) {
      break;
    }
    rest.remove_prefix(1);
  }

  const Decimal decimal = takeDecimal(rest, true);
  if (!decimal.hasDigits) return std::nullopt;

  bool parenthesisOpen = parenthesis;
  while (!rest.empty()) {
    const char character = rest.front();
    if ((character == '-' || character == '+') && !signSeen && !parenthesis) {
      signSeen = true;
      negative = character == '-';
    } else if (character == ')' && parenthesisOpen) {
      parenthesisOpen = false;
    } else if (character == '$' && !currencySeen) {
      currencySeen = true;
    } else if (!isSpace(character)) {
      return std::nullopt;
    }
    rest.remove_prefix(1);
  }
  if (parenthesisOpen) return std::nullopt;
  const double value = valueOf(decimal);
  return ParsedNumber{negative ? -value : value, std::nullopt};
}

std::int16_t toInt16(const ParsedNumber& number) {
  return number.bits ? wrapped<std::int16_t, std::uint16_t>(*number.bits) : toInt16(number.value);
}

std::int32_t toInt32(const ParsedNumber& number) {
  return number.bits ? wrapped<std::int32_t, std::uint32_t>(*number.bits) : toInt32(number.value);
}

double leadingNumber(std::string_view text) {
  std::string packed;
  for (const char character : text) {
    if (!isSpace(character) && character != '\n' && character != '\r') packed += character;
  }
  std::string_view rest = packed;
  if (takeFront(rest, '&')) {
    std::size_t length = 0;
    const bool hex = !rest.empty() && upper(rest.front()) == 'H';
    const bool marked = hex || (!rest.empty() && upper(rest.front()) == 'O');
    if (marked) length = 1;
    while (length < rest.size() && digitValue(rest[length]) < (hex ? 16 : 8)) ++length;
    const auto number = parseRadix(rest.substr(0, length));
    if (!number) return 0;
    // Without a type mark behind, up to 4 hexadecimal digits are a 16-bit number, more a 32-bit
    // one.
    if (*number->bits <= 0xFFFF && !rest.substr(length).starts_with('&')) return toInt16(*number);
    return toInt32(*number);
  }
  const bool negative = takeFront(rest, '-');
  if (!negative) takeFront(rest, '+');
  const Decimal decimal = takeDecimal(rest, false);
  if (!decimal.hasDigits) return 0;
  const double value = valueOf(decimal);
  return negative ? -value : value;
}

std::string doubleText(double value) {
  if (value == 0) return "0";  // -0 as well
  if (std::isnan(value)) return std::signbit(value) ? "-1.#IND" : "1.#QNAN";
  if (std::isinf(value)) return value > 0 ? "1.#INF" : "-1.#INF";
  constexpr int kDigits = 15;
  std::array<char, 32> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::general, kDigits);
  std::string text(buffer.data(), result.ptr);
  for (char& character : text) character = upper(character);
  return text;
}

}  // namespace tarrowin
