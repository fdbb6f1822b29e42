#include "control/ErrorReporter.h"

#include <string>

#include "control/Version.h"

namespace mavCycEd {

void ErrorReporter::report(const RunTimeError& error, std::string_view procedure) noexcept {
  try {
    errors_.copyError(error);
    if (!onError_) return;
    CycleEditorErrorEvent event;
    event.lngError = errors_.record().number;
    event.strError = errors_.record().description;
    event.strApplication = applicationText();
    event.strModule = "ctlCycEd";
    event.strProcedure = std::string(procedure) + " ";
    event.intLineNumber = error.lineNumber();
    onError_(event);
  } catch (...) {
    // The host's handler failed, or there is no memory left to tell it anything: there is nobody else to tell.
    return;
  }
}

}  // namespace mavCycEd
