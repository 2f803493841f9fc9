// A failed statement: a number and a description, as Visual Basic's Err object holds them.
// Visual Basic, Access, DAO and automation failures all travel as this one type.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace tarrowin {

// Not for two threads at once: a standard text is made when it is asked for the first time, since
// most errors are only told apart by their number.
class VbError : public std::exception {
 public:
  VbError(std::int32_t number, std::string description)
      : number_(number), description_(std::move(description)) {}
  // The error with standardErrorText(number, name) as its description.
  static VbError standard(std::int32_t number, std::string_view name = {}) {
    VbError error(number, std::string(name));
    error.isTextDue_ = true;
    return error;
  }

  // Err.Number. An HRESULT such as 0x80004005 is its signed 32-bit value.
  std::int32_t number() const { return number_; }
  // Err.Description, in the program's ANSI code page.
  const std::string& description() const {
    if (isTextDue_) makeText();
    return description_;
  }
  const char* what() const noexcept override { return description().c_str(); }

 private:
  void makeText() const;

  std::int32_t number_;
  mutable bool isTextDue_ = false;  // the description is still the name alone
  mutable std::string description_;
};

// The standard English text of an error number; the name stands in place of the text's
// placeholder. A number without a text of its own gives Visual Basic's text for such numbers,
// "Application-defined or object-defined error".
std::string standardErrorText(std::int32_t number, std::string_view name = {});

// Throws VbError::standard(number, name).
[[noreturn]] void raise(std::int32_t number, std::string_view name = {});

// Numbers that the code raises by name. Visual Basic's own:
inline constexpr std::int32_t kErrInvalidCall = 5;
inline constexpr std::int32_t kErrOverflow = 6;
inline constexpr std::int32_t kErrSubscript = 9;
inline constexpr std::int32_t kErrTypeMismatch = 13;
inline constexpr std::int32_t kErrBadFileName = 52;
inline constexpr std::int32_t kErrFileNotFound = 53;
inline constexpr std::int32_t kErrBadFileMode = 54;
inline constexpr std::int32_t kErrFileAlreadyOpen = 55;
inline constexpr std::int32_t kErrDeviceIo = 57;
inline constexpr std::int32_t kErrDiskFull = 61;
inline constexpr std::int32_t kErrPastEndOfFile = 62;
inline constexpr std::int32_t kErrTooManyFiles = 67;
inline constexpr std::int32_t kErrPermissionDenied = 70;
inline constexpr std::int32_t kErrDiskNotReady = 71;
inline constexpr std::int32_t kErrPathAccess = 75;
inline constexpr std::int32_t kErrPathNotFound = 76;
inline constexpr std::int32_t kErrObjectNotSet = 91;
inline constexpr std::int32_t kErrInvalidNull = 94;
inline constexpr std::int32_t kErrObjectRequired = 424;
inline constexpr std::int32_t kErrNoSuchMember = 438;
// Automation: E_FAIL, which stands for a file that is no database or cannot be read.
inline constexpr std::int32_t kErrAutomationFail = static_cast<std::int32_t>(0x80004005u);

}  // namespace tarrowin
