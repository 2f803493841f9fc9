// Runs a statement that must fail with a certain Visual Basic error number.
#pragma once

#include <gtest/gtest.h>

#include "shared/vb_error.h"

namespace tarrowin::test {

// The number that the statement raises, 0 when it raises nothing.
template <typename Statement>
std::int32_t raisedNumber(Statement&& statement) {
  try {
    statement();
  } catch (const VbError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace tarrowin::test

#define EXPECT_RAISES(number, statement) \
  EXPECT_EQ(number, ::tarrowin::test::raisedNumber([&] { (void)(statement); })) << #statement
