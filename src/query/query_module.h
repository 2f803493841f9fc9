// One query as a Visual Basic procedure that assigns the query's SQL text to a string.
#pragma once

#include <string>
#include <string_view>

namespace tarrowin {

struct MainObject;

// Derives the names of a query: mstrQryName, mstrBaseName, mstrModFile, gstrQueryFile. An older
// file of its own name is deleted. With mblnFirstQuery the single file mstrQueriesFile is opened.
// An error is reported in a box and ends the procedure.
void SetupQueryNames(MainObject& main, std::string_view strQryName);

// "Big_Orders.bas" becomes "Big_Orders": the text up to the first ".", whole without one.
void cutToProcedureName(std::string& fileName);

// The procedure's four lines, CR LF between them; the last line's end is that of the print. The SQL
// text is one line: line breaks and control characters become blanks, double quotes apostrophes.
std::string queryModuleText(std::string_view procedureName, std::string sql);

// Writes the text and a line end to the file mstrModFile of the output directory.
void WriteSQLQuery(MainObject& main, const std::string& text);

}  // namespace tarrowin
