#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace mavCycEd {

/// The error numbers that the control itself reports.
enum mavCycEdError : std::int32_t {
  /// A text that should be XML is unusable (513 above the object error base &H80040000).
  mavCycEdErrorInvalidXML = -2147220991,
};

/// The arguments of the control's one event.
struct CycleEditorErrorEvent {
  std::int32_t lngError = 0;       ///< the error's number
  std::string strError;            ///< what happened
  std::string strApplication;      ///< "mavCycEd" and the library's version
  std::string strModule;           ///< "ctlCycEd"
  std::string strProcedure;        ///< the failing procedure's name and one blank
  std::int16_t intLineNumber = 0;  ///< the failing line, 0 where none is known
};

/// The host's handler of the event.
using CycleEditorErrorHandler = std::function<void(const CycleEditorErrorEvent&)>;

}  // namespace mavCycEd
