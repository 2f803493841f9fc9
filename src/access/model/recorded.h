// A value as it was read from Access, or the error that its reading raises.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "shared/vb_error.h"

namespace tarrowin {

struct RecordedError {
  std::int32_t number = 0;
  // Absent: the standard text of the number, with the name of what was asked for.
  std::optional<std::string> description;

  VbError asError(std::string_view name) const {
    return description ? VbError(number, *description) : VbError::standard(number, name);
  }
  [[noreturn]] void raise(std::string_view name) const { throw asError(name); }
};

template <class T>
class Recorded {
 public:
  Recorded() = default;
  Recorded(T value) : value_(std::move(value)) {}
  Recorded(RecordedError error) : error_(std::make_shared<const RecordedError>(std::move(error))) {}

  const RecordedError* error() const { return error_.get(); }
  // The value; raises the recorded error, the name standing in its text.
  const T& read(std::string_view name) const {
    if (error_) error_->raise(name);
    return value_;
  }
  // The value, or nullptr where reading raises.
  const T* ifRead() const { return error_ ? nullptr : &value_; }

 private:
  T value_{};
  std::shared_ptr<const RecordedError> error_;
};

}  // namespace tarrowin
