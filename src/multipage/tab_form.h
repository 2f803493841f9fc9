// CreateNewFormInTab: a multi-page form turned into one form with a tab control, inside the
// database.
#pragma once

#include <string_view>

namespace tarrowin {

struct MainObject;

// Makes a new form whose tab control has the controls of each page of the Access form on a page of
// its own, and saves it; the form itself stays as it is. blnShowResult asks for the message with
// the new name.
void CreateNewFormInTab(MainObject& main, std::string_view name, bool blnShowResult);

}  // namespace tarrowin
