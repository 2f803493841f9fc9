// DoCmd: the actions that open, close and export objects.
#pragma once

#include <memory>

#include "access/model/model_object.h"

namespace tarrowin {

// Without a session only the actions that concern Access's own windows work; the others raise 91.
ObjectRef makeDoCmd(std::shared_ptr<Session> session);

}  // namespace tarrowin
