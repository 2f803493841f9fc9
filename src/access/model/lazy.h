// A part of the tree that is read from its source when it is asked for the first time, and kept.
#pragma once

#include <functional>
#include <optional>
#include <utility>

namespace tarrowin {

// Not for two threads at once. A loader that throws is asked again the next time.
template <class T>
class Lazy {
 public:
  Lazy() : value_(std::in_place) {}
  Lazy(T value) : value_(std::move(value)) {}
  explicit Lazy(std::function<T()> load) : load_(std::move(load)) {}

  const T& get() const {
    if (!value_) {
      value_ = load_();
      load_ = nullptr;
    }
    return *value_;
  }

 private:
  mutable std::optional<T> value_;
  mutable std::function<T()> load_;
};

}  // namespace tarrowin
