// Forms and reports whose designs are decoded when somebody opens them.
#pragma once

#include <functional>
#include <string>

#include "access/designs/stored_design.h"
#include "access/model/database_model.h"

namespace tarrowin {

enum class DesignKind { kForm, kReport };

// The form or report of that name in the database, which must outlive it; add it to the database's
// own lists. The reader is called when the object is opened, once if it succeeds; what it throws
// (VbError with a text in the program's code page, or any other exception with one in UTF-8)
// becomes the error of opening this one object, 2601, which every conversion takes as refused:
// "Microsoft Access can't open the form 'x'." and the reason behind it. The caller sets the module,
// its lines and an exportError.
DesignModel lazyDesign(DatabaseModel& database, std::string name, DesignKind kind,
                       std::function<StoredDesign()> read);

// The same error for an object of which it is known from the start that it cannot be opened. The
// reason is in the program's code page; none: the sentence alone.
RecordedError cannotOpenDesign(DesignKind kind, const std::string& name,
                               const std::string& reason = {});

}  // namespace tarrowin
