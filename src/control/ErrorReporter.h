#pragma once

#include <utility>

#include "control/CycleEditorErrorEvent.h"
#include "control/modErr.h"
#include "platform/ErrorSink.h"

namespace mavCycEd {

/// The one way by which failures leave the control: the error record is filled and the host's handler is called.
class ErrorReporter : public ErrorSink {
 public:
  ErrorReporter(modErr& errors, CycleEditorErrorHandler onError) : errors_(errors), onError_(std::move(onError)) {}

  /// A handler that throws is on its own: what it throws ends here.
  void report(const RunTimeError& error, std::string_view procedure) noexcept override;

 private:
  modErr& errors_;
  CycleEditorErrorHandler onError_;
};

}  // namespace mavCycEd
