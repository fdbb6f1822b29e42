#pragma once

#include <string_view>
#include <type_traits>
#include <utility>

#include "platform/RunTimeError.h"

namespace mavCycEd {

/// Where the failures of the editor's procedures go: out of the control, to the host.
class ErrorSink {
 public:
  virtual ~ErrorSink() = default;

  /// Reports that `procedure` (its bare name) ended because of `error`. Never throws.
  virtual void report(const RunTimeError& error, std::string_view procedure) noexcept = 0;
};

/// Reports the exception that is being handled at this moment: call it inside a catch block. Never throws.
void reportCurrentError(ErrorSink& sink, std::string_view procedure) noexcept;

/// The one error handler that every procedure runs under: runs `body`; an exception of any kind ends it, is reported
/// under the procedure's name, and goes no further. The result is the body's, or a value-initialised one after an
/// error.
template <typename Body>
auto guarded(ErrorSink& sink, std::string_view procedure, Body&& body) -> std::invoke_result_t<Body> {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    reportCurrentError(sink, procedure);
  }
  return std::invoke_result_t<Body>();
}

}  // namespace mavCycEd
