// The text procedures that all generators share: names for Visual Basic, cleaning, replacing,
// cutting. Text is in the ANSI code page; all run in linear time.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tarrowin {

// Those that take a std::string& change it in place and return it; on a temporary they return the
// changed text: MakeVBName(std::string(name)) works on a copy.

// An Access name as Visual Basic identifier: trimmed, cut to 40 characters; letters, digits, "_"
// and the codes 192 to 255 stay, all else becomes "_", a first character that is no letter "x"
// (codes 192 to 255 count as letters there). "2nd Quarter" is "xnd_Quarter". Two names may meet in
// one.
std::string& MakeVBName(std::string& name);
std::string MakeVBName(std::string&& name);

// Every character of code below 32, 127 to 144 and 147 to 159 becomes a blank; 145 and 146, the
// typographic single quotes, stay. The length never changes.
std::string& RemoveControlChars(std::string& text);
std::string RemoveControlChars(std::string&& text);

// Every CR LF becomes two blanks, then RemoveControlChars.
std::string& RemoveLineBreaks(std::string& text);
std::string RemoveLineBreaks(std::string&& text);

// Every double quote becomes an apostrophe.
std::string& DoubleToSingleQuotes(std::string& text);
std::string DoubleToSingleQuotes(std::string&& text);

// RemoveControlChars and DoubleToSingleQuotes, unless the text is empty or blanks only.
std::string& CleanText(std::string& text);
std::string CleanText(std::string&& text);

// Replaces the first occurrence of find in place and returns the new text. When find does not occur
// the text stays, and the result is EMPTY: callers assign the result back and rely on that. An
// empty find occurs at the start of any text but the empty one.
std::string ReplaceFirst(std::string& text, std::string_view find, std::string_view replacement);

// What stands between "Set " and the blank before the first "=" of a line such as
// "Set db = CurrentDb": the characters from 4 behind the first "Set" to 2 before the "=". Raises 5
// when the "=" stands before that.
std::string ExtractSetVariable(std::string_view line);

// The text between double quotes.
std::string inQuotes(std::string_view text);

// What stands between the first two double quotes; empty when one is missing.
std::string FirstQuotedText(std::string_view text);

// Seconds as "hh:mm:ss seconds": 593 is "00:09:53 seconds".
std::string FormatSeconds(std::int32_t seconds);

// The largest element; raises 9 for an array without elements.
std::int16_t MaxOfArray(std::span<const std::int16_t> array);

}  // namespace tarrowin
