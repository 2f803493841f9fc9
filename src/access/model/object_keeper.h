// What keeps the objects that are made while a database is open.
#pragma once

#include <string>

#include "access/model/database_model.h"

namespace tarrowin {

// Its objects are there again when the database is opened the next time.
class ObjectKeeper {
 public:
  virtual ~ObjectKeeper() = default;
  // Adds the object to what is kept, in place of one of the same name. When that fails nothing has
  // changed; raises 3027 for what is write-protected, 3026 for a full disk, 3043 for any other
  // trouble with the disk, 3045 when another program is changing the database, 3197 when one has
  // changed it since it was opened. The description says which file and why.
  virtual void keepForm(const DesignModel& form) = 0;
  virtual void keepModule(const ModuleModel& module) = 0;
  // A recording's document with all that was kept. Raises 0x80004005 when it cannot be read.
  virtual std::string document() const = 0;
  // Nothing more is to be kept: other programs may change the database.
  virtual void release() = 0;
};

}  // namespace tarrowin
