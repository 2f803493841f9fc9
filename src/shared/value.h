// A value as Visual Basic's Variant holds it, and the conversions of assignments and operators.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarrowin {

class AccessObject;  // core/access_object.h
using ObjectRef = std::shared_ptr<AccessObject>;
using Bytes = std::vector<std::uint8_t>;

// Days since 1899-12-30 with the time of day as fraction, the date value of Visual Basic.
struct Date {
  double days = 0;
  friend bool operator==(const Date&, const Date&) = default;
};

class Value {
 public:
  struct Null {
    friend bool operator==(const Null&, const Null&) = default;
  };

  Value() = default;  // Empty
  Value(Null) : data_(Null{}) {}
  Value(bool value) : data_(value) {}
  Value(std::int32_t value) : data_(value) {}
  Value(double value) : data_(value) {}
  Value(Date value) : data_(value) {}
  Value(std::string value) : data_(std::move(value)) {}
  Value(std::string_view value) : data_(std::string(value)) {}
  Value(const char* value) : data_(std::string(value)) {}
  Value(Bytes value) : data_(std::make_shared<const Bytes>(std::move(value))) {}
  Value(ObjectRef value) : data_(std::move(value)) {}

  bool isEmpty() const { return std::holds_alternative<std::monostate>(data_); }
  bool isNull() const { return std::holds_alternative<Null>(data_); }
  // Also for the reference to no object, Nothing.
  bool isObject() const { return std::holds_alternative<ObjectRef>(data_); }

  // The stored alternative, or nullptr when the value is of another kind.
  const bool* boolean() const { return std::get_if<bool>(&data_); }
  const std::int32_t* longInteger() const { return std::get_if<std::int32_t>(&data_); }
  const double* doubleNumber() const { return std::get_if<double>(&data_); }
  const Date* date() const { return std::get_if<Date>(&data_); }
  const std::string* text() const { return std::get_if<std::string>(&data_); }
  const Bytes* bytes() const;
  ObjectRef object() const;

  // Same kind and same content; objects compare by identity.
  friend bool operator==(const Value& left, const Value& right);

 private:
  std::variant<std::monostate, Null, bool, std::int32_t, double, Date, std::string,
               std::shared_ptr<const Bytes>, ObjectRef>
      data_;
};

// Conversions on assignment to a typed variable. Null raises 94, what has no meaning as the type
// raises 13, a number beyond the type's range 6. Empty is "" or 0. Fractions round half to even.
std::string toText(const Value& value);
std::int32_t toLong(const Value& value);
std::int16_t toInteger(const Value& value);
double toDouble(const Value& value);
bool toBoolean(const Value& value);
// The object; 424 (object required) for any other kind, 91 for no object.
ObjectRef toObject(const Value& value);

// The operand of "&": as toText, with Null as nothing.
std::string joined(const Value& value);

}  // namespace tarrowin
