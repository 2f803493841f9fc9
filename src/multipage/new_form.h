// CreateNewForm: a multi-page form split into one form a page, inside the database.
#pragma once

#include <string_view>

namespace tarrowin {

struct MainObject;

// Makes one new form for each page of the Access form and saves it; the form itself stays as it is.
// blnShowResult asks for the message with the new names.
void CreateNewForm(MainObject& main, std::string_view name, bool blnShowResult);

}  // namespace tarrowin
