// A report made in a test, member by member, for what a recording cannot hold: thousands of
// reports a second, and a report that takes every method.
#pragma once

#include <cctype>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "core/access_object.h"
#include "shared/value.h"

namespace tarrowin::test {

// Members by name; what has none raises 438.
class MadeObject : public AccessObject {
 public:
  using Member = std::function<Value(Arguments)>;

  void set(const std::string& name, Member member) { members_[name] = std::move(member); }
  void set(const std::string& name, Value value) {
    members_[name] = [value = std::move(value)](Arguments) { return value; };
  }

  Value get(std::string_view name, Arguments arguments) override { return ask(name, arguments); }
  void put(std::string_view, const Value&) override { raise(kErrNoSuchMember); }
  Value call(std::string_view name, Arguments arguments) override { return ask(name, arguments); }

 private:
  Value ask(std::string_view name, Arguments arguments) {
    const auto member = members_.find(name);
    if (member == members_.end()) raise(kErrNoSuchMember, name);
    return member->second(arguments);
  }

  std::map<std::string, Member, std::less<>> members_;
};

}  // namespace tarrowin::test
