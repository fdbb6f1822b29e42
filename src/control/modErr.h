#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/RunTimeError.h"
#include "platform/SystemMessage.h"

namespace mavCycEd {

/// The last error that a procedure of the control trapped.
struct ErrorRecord {
  std::int32_t number = 0;
  std::string description;
  std::string source;
  std::string helpFile;
  std::int32_t helpContext = 0;
  std::int32_t lastSystemError = 0;  ///< kept for errors of components that the control called; otherwise 0
};

/// The control's error record, and the texts made of it.
class modErr {
 public:
  explicit modErr(const platform::SystemMessage& systemMessage) : systemMessage_(systemMessage) {}

  const ErrorRecord& record() const { return record_; }

  /// Puts an error into the record. An error without a number is itself a misuse, and recorded as that.
  void copyError(const RunTimeError& error);

  /// The operating system's text for one of its error codes; "(No such error)" when it has none.
  std::string GetSystemMessage(std::int32_t lngMsgID) const;

  /// The text shown for an unexpected error: a heading with `title`, the caller's `context`, and the record.
  std::string ErrMsg(const ErrorRecord& error, std::string_view title, std::string_view context) const;

  /// The text without one carriage return and line feed at its end.
  static std::string removeTerminatingCRLF(std::string_view text);

 private:
  std::int32_t lastSystemError() const noexcept;

  const platform::SystemMessage& systemMessage_;
  ErrorRecord record_;
};

}  // namespace mavCycEd
