// Lines of code and comments, broken where Visual Basic needs it.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin {

// Appends one statement, ended by CR LF, indented by four blanks a level. Visual Basic takes lines
// of 1,023 characters and statements of 25 lines: a longer line goes on behind " _", broken between
// the parts of the statement or, where they are too long, inside a text. A statement that is too
// long all the same is appended as comments.
void appendStatement(std::string& text, int level, std::string_view statement);

// Appends a comment in as many lines as it has itself, more when they are too long.
void appendComment(std::string& text, int level, std::string_view comment);

}  // namespace tarrowin
