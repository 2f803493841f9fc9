// The code part of a form file: the form's own code, converted, and the generated statements.
#pragma once

namespace tarrowin {

struct MainObject;

// Appends to output file number 1, which holds the form's properties; closes the form or report in
// Access, then the file. The code comes through the temporary file "Form_" + mstrFormFile of the
// output directory. Reports and databases of Access 97 get generated statements only. Errors go by
// a table of its own and never leave the procedure.
void GetAccFormCode(MainObject& main);

}  // namespace tarrowin
