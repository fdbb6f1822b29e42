#include "platform/RunTimeError.h"

#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

namespace mavCycEd {
namespace {

std::int16_t fittingLine(std::uint_least32_t line) {
  constexpr auto highest = static_cast<std::uint_least32_t>(std::numeric_limits<std::int16_t>::max());
  return line <= highest ? static_cast<std::int16_t>(line) : std::int16_t{0};
}

RunTimeError foreign(ErrorNumber number, const char* what) {
  const std::string_view description = what != nullptr ? std::string_view(what) : describe(number);
  return {static_cast<std::int32_t>(number), std::string(description), std::string(RunTimeError::ownSource),
          std::source_location()};
}

}  // namespace

std::string_view describe(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::InvalidProcedureCall: return "Invalid procedure call or argument";
    case ErrorNumber::Overflow: return "Overflow";
    case ErrorNumber::OutOfMemory: return "Out of memory";
    case ErrorNumber::SubscriptOutOfRange: return "Subscript out of range";
    case ErrorNumber::DivisionByZero: return "Division by zero";
    case ErrorNumber::TypeMismatch: return "Type mismatch";
    case ErrorNumber::Unexpected: return "Internal error";
    case ErrorNumber::ObjectNotSet: return "Object variable not set";
    case ErrorNumber::KeyInUse: return "This key is already associated with an element of this collection";
  }
  return "Internal error";
}

RunTimeError::RunTimeError(ErrorNumber number, std::source_location raisedAt)
    : RunTimeError(static_cast<std::int32_t>(number), std::string(describe(number)), std::string(ownSource), raisedAt) {
}

RunTimeError::RunTimeError(std::int32_t number, std::string description, std::string source,
                           std::source_location raisedAt)
    : number_(number),
      description_(std::move(description)),
      source_(std::move(source)),
      lineNumber_(fittingLine(raisedAt.line())) {}

RunTimeError currentError() {
  try {
    throw;
  } catch (const RunTimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return foreign(ErrorNumber::OutOfMemory, nullptr);
  } catch (const std::length_error& error) {
    return foreign(ErrorNumber::OutOfMemory, error.what());
  } catch (const std::out_of_range& error) {
    return foreign(ErrorNumber::SubscriptOutOfRange, error.what());
  } catch (const std::overflow_error& error) {
    return foreign(ErrorNumber::Overflow, error.what());
  } catch (const std::invalid_argument& error) {
    return foreign(ErrorNumber::InvalidProcedureCall, error.what());
  } catch (const std::domain_error& error) {
    return foreign(ErrorNumber::InvalidProcedureCall, error.what());
  } catch (const std::exception& error) {
    return foreign(ErrorNumber::Unexpected, error.what());
  } catch (...) {
    return foreign(ErrorNumber::Unexpected, nullptr);
  }
}

}  // namespace mavCycEd
