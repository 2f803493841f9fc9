// Memo and OLE values, which may stand in their row, on a page of their own, or on a chain of
// pages.
#pragma once

#include "access/mdb/byte_view.h"
#include "access/mdb/page_file.h"
#include "access/mdb/step_budget.h"
#include "shared/value.h"

namespace tarrowin::mdb {

// The whole value to which the cell of a row refers. Throws Error (kDamaged), also when less can be
// found than the stated length.
Bytes readLongValue(const PageFile& file, const ByteView& cell, StepBudget& budget);

}  // namespace tarrowin::mdb
