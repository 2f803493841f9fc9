// Why a database file, or one part of it, could not be read. Everything in this folder fails with
// this one type and no other.
#pragma once

#include <exception>
#include <string>

namespace tarrowin::mdb {

enum class ErrorKind {
  kNotADatabase,  // empty, a text file, or anything else without Jet's signature
  kNewerFormat,   // Access 2007 or later
  kPassword,      // the file asks for a database password
  kDamaged,       // a database, but what it says contradicts itself or points out of the file
  kUnreadable,    // missing, a directory, no permission, a failing disk
};

class Error : public std::exception {
 public:
  Error(ErrorKind kind, std::string message) : kind_(kind), message_(std::move(message)) {}

  ErrorKind kind() const { return kind_; }
  // One sentence in UTF-8 without a final stop that says what is wrong and where.
  const std::string& message() const { return message_; }
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  ErrorKind kind_;
  std::string message_;
};

}  // namespace tarrowin::mdb
