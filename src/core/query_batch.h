// ConvertQueries: the driver of the Queries list.
#pragma once

namespace tarrowin {

struct MainObject;

// Converts the selected queries, or all, to Visual Basic modules: one file a query, or one for all
// with chkMultiSel and at least two selected.
void ConvertQueries(MainObject& main, bool blnAll);

}  // namespace tarrowin
