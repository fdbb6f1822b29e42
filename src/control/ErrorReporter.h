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

  /// A handler that throws is on its own: what it throws ends here. One whose own calls fail again and again is not
  /// called without end.
  void report(const RunTimeError& error, std::string_view procedure) noexcept override;
  /// From now on nobody is told, and nothing outside the control is touched.
  void end() {
    ended_ = true;
    onError_ = {};
  }

 private:
  modErr& errors_;
  CycleEditorErrorHandler onError_;
  bool ended_ = false;
  int told_ = 0;    // events that are being handled, each inside the one before
  int inside_ = 0;  // events that were told since the outermost of them began
};

}  // namespace mavCycEd
