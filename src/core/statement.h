// One statement, one guard: "resume at the next statement" as a construct of its own. A statement
// that raises has no effect; the procedure's handler decides how its body goes on.
#pragma once

#include <functional>
#include <utility>

#include "shared/vb_error.h"

namespace tarrowin {

// How a body goes on after a failed statement: at the next one, with the same one again, or not
// at all.
enum class Resume { kNext, kRetry, kLeave };

// A procedure with an error handler. Example:
//
//   Procedure procedure([&](const VbError& error) { return Resume::kNext; });
//   procedure.run([&] {
//     procedure.statement([&] { name = form.name(); });
//     procedure.statement([&] { files.Print(1, name); });
//   });
class Procedure {
 public:
  using Handler = std::function<Resume(const VbError&)>;

  explicit Procedure(Handler handler) : handler_(std::move(handler)) {}
  Procedure(const Procedure&) = delete;
  Procedure& operator=(const Procedure&) = delete;

  // Runs the body up to its end or to the statement whose error made the handler leave. True when
  // it reached its end.
  template <class Body>
  bool run(Body&& body) {
    try {
      body();
      return true;
    } catch (const Left& left) {
      if (left.procedure != this) throw;
      return false;
    }
  }

  // Runs one statement of the body under the handler. True when it had its effect.
  template <class Statement>
  bool statement(Statement&& statement) {
    for (;;) {
      try {
        statement();
        return true;
      } catch (const VbError& error) {
        switch (handler_(error)) {
          case Resume::kNext:
            return false;
          case Resume::kRetry:
            continue;
          case Resume::kLeave:
            leave();
        }
      }
    }
  }

  // Ends the body from inside it.
  [[noreturn]] void leave() const { throw Left{this}; }

 private:
  struct Left {
    const Procedure* procedure;
  };
  Handler handler_;
};

// Runs a statement whose failure is of no account. True when it had its effect.
template <class Statement>
bool ignoringErrors(Statement&& statement) {
  try {
    statement();
    return true;
  } catch (const VbError&) {
    return false;
  }
}

// A condition that cannot be read is false.
template <class Condition>
bool holds(Condition&& condition) {
  bool result = false;
  ignoringErrors([&] { result = condition(); });
  return result;
}

}  // namespace tarrowin
