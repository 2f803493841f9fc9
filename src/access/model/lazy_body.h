// The body of a design that is decoded when somebody opens it, and forgotten when nobody has it
// open any more: thousands of forms are converted in the memory of one.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace tarrowin {

// Not for two threads at once. Copies hold bodies of their own. A loader that throws is asked again
// the next time.
template <class Body>
class LazyBody {
 public:
  LazyBody() : kept_(std::make_shared<Body>()) {}
  LazyBody(Body body) : kept_(std::make_shared<Body>(std::move(body))) {}
  explicit LazyBody(std::function<Body()> load) : load_(std::move(load)) {}
  LazyBody(const LazyBody& other)
      : kept_(other.kept_ ? std::make_shared<Body>(*other.kept_) : nullptr),
        loaded_(other.loaded_),
        load_(other.load_) {}
  LazyBody(LazyBody&&) noexcept = default;
  LazyBody& operator=(LazyBody other) noexcept {
    std::swap(kept_, other.kept_);
    std::swap(loaded_, other.loaded_);
    std::swap(load_, other.load_);
    return *this;
  }
  ~LazyBody() = default;

  // The body, which stays for as long as the pointer is held.
  std::shared_ptr<const Body> get() const {
    if (kept_) return kept_;
    std::shared_ptr<const Body> body = loaded_.lock();
    if (!body) loaded_ = body = std::make_shared<const Body>(load_());
    return body;
  }
  // The body for changes, kept from now on.
  Body& edit() {
    if (!kept_) kept_ = std::make_shared<Body>(*get());
    return *kept_;
  }

 private:
  std::shared_ptr<Body> kept_;
  mutable std::weak_ptr<const Body> loaded_;
  std::function<Body()> load_;
};

}  // namespace tarrowin
