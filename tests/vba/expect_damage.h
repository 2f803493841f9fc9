// Expecting mdb::Error (kDamaged) with a message.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "access/mdb/mdb_error.h"

namespace tarrowin::vba {

// The message of the damage that the body meets; empty, and a failure, when it meets none.
template <class Body>
std::string damageOf(Body body) {
  try {
    body();
  } catch (const mdb::Error& error) {
    EXPECT_EQ(error.kind(), mdb::ErrorKind::kDamaged);
    return error.message();
  }
  ADD_FAILURE() << "no error";
  return {};
}

}  // namespace tarrowin::vba
