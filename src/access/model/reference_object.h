// The References collection of an application.
#pragma once

#include <memory>

#include "access/model/model_object.h"

namespace tarrowin {

// By 0-based index or Name; what is not there raises 9. A reference has Name, FullPath, what else
// is recorded of it, and Collection. Empty without a session.
CollectionSource referenceCollection(std::shared_ptr<Session> session);

}  // namespace tarrowin
