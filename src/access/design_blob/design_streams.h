// Finds and reads the designs in the tree of streams of an open database.
#pragma once

#include <string_view>

#include "access/designs/stored_design.h"
#include "access/model/lazy.h"
#include "access/vba/object_tree.h"
#include "shared/code_page.h"

namespace tarrowin {

// The design of the form or report of that name (UTF-8, as in the catalog), kForms or kReports,
// with hasModule. The ANSI page is asked for only by a design of Access 97. Throws mdb::Error
// (kDamaged): the object has no design, or it cannot be read to its last byte.
StoredDesign readStoredDesign(const vba::ObjectTree& objects, vba::Container container,
                              std::string_view name, const Lazy<CodePage>& ansi,
                              const CodePage& codePage);

}  // namespace tarrowin
