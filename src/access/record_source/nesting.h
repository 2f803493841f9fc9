// A bound on recursion, so that no text can exhaust the stack.
#pragma once

#include "access/record_source/sql_tokens.h"

namespace tarrowin {

// One level of nesting for as long as it lives. Throws Unresolvable beyond kMaxNesting levels.
class NestingGuard {
 public:
  explicit NestingGuard(int& nesting) : nesting_(nesting) {
    if (nesting_ >= kMaxNesting) throw Unresolvable();
    ++nesting_;
  }
  NestingGuard(const NestingGuard&) = delete;
  NestingGuard& operator=(const NestingGuard&) = delete;
  ~NestingGuard() { --nesting_; }

 private:
  int& nesting_;
};

}  // namespace tarrowin
