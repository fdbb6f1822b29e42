#pragma once

#include <cstdint>
#include <exception>
#include <source_location>
#include <string>
#include <string_view>

namespace mavCycEd {

/// The usual run-time error numbers. Whatever has no number of its own is `Unexpected`.
enum class ErrorNumber : std::int32_t {
  InvalidProcedureCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  Unexpected = 51,
  ObjectNotSet = 91,
  KeyInUse = 457,
};

/// The text that goes with a run-time error number ("Subscript out of range").
std::string_view describe(ErrorNumber number);

/// A failure on its way to the procedure that reports it: number, description, source, and where it was raised.
class RunTimeError : public std::exception {
 public:
  /// The source of errors that the editor itself raises.
  static constexpr std::string_view ownSource = "mavCycEd";

  explicit RunTimeError(ErrorNumber number, std::source_location raisedAt = std::source_location::current());
  RunTimeError(std::int32_t number, std::string description, std::string source = std::string(ownSource),
               std::source_location raisedAt = std::source_location::current());

  std::int32_t number() const { return number_; }
  const std::string& description() const { return description_; }
  const std::string& source() const { return source_; }
  /// The line of the source file that raised the error, 0 where it does not fit 16 bits.
  std::int16_t lineNumber() const { return lineNumber_; }

  const char* what() const noexcept override { return description_.c_str(); }

 private:
  std::int32_t number_;
  std::string description_;
  std::string source_;
  std::int16_t lineNumber_;
};

/// The exception being handled at this moment as a run-time error: call it inside a catch block. Exceptions of the
/// standard library get the number that fits them and line 0.
RunTimeError currentError();

}  // namespace mavCycEd
