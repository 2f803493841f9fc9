// What stands above a control: its Parent, the Parent's Parent, and so on up to the form, whose own
// Parent cannot be read.
#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "core/access_objects.h"

namespace tarrowin {

// The links above a control: P is its Parent, Q the Parent of P, R that of Q.
namespace parent_link {
inline constexpr std::size_t P = 0, Q = 1, R = 2;
inline constexpr std::size_t kParents = 2;  // how many are followed where R is of no account
}  // namespace parent_link

class ParentChain {
 public:
  // Follows Parent as many times as the chain has links.
  static constexpr std::size_t kLinks = 3;
  // Asked with each error of a read.
  using OnError = std::function<void(const VbError&)>;

  explicit ParentChain(const LateBound& ctl, std::size_t links = kLinks);

  // A member of the link, 0 the Parent; the error of the first link that could not be read, where
  // one could not.
  Reading read(std::size_t link, std::string_view member) const;
  // As text and number; the error goes to onError, and the result is then empty or 0.
  std::string text(std::size_t link, std::string_view member, const OnError& onError) const;
  std::int32_t number(std::size_t link, std::string_view member, const OnError& onError) const;
  // As a signed 16-bit number.
  std::int16_t integer(std::size_t link, std::string_view member, const OnError& onError) const;

 private:
  std::array<LateBound, kLinks> links_;
  std::optional<VbError> broken_;  // why the link behind the last one is missing
};

}  // namespace tarrowin
