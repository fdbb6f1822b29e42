#include "control/modMsgBox.h"

#include <string>

#include "text/LineEnds.h"

namespace mavCycEd {

using text::crLf;

int modMsgBox::messageBox(platform::WindowHandle owner, std::string_view message, std::string_view caption, int flags) {
  if (ended_) return platform::NoButton;
  const int pressed = service_.messageBox(owner, message, caption, flags);
  if (pressed != platform::NoButton || ended_) return pressed;

  std::string failure;
  if (const std::int32_t code = systemMessage_.lastErrorCode(); code != 0) {
    errors_.copyError(RunTimeError(code, errors_.GetSystemMessage(code), "MessageBoxEx@modMsgBox.messageBox"));
    const ErrorRecord& error = errors_.record();
    failure.append("MessageBoxEx API was unable to show a message.").append(crLf);
    failure.append("Err.Number: ").append(std::to_string(error.number)).append(crLf);
    failure.append("Err.Source: ").append(error.source).append(crLf);
    // Shown as it stands: hosts' support staff know this message by its wording.
    failure.append("Err.Description: &  g_structError.strDescription & CONST_DBLLINE").append(crLf);
    failure.append("original message was: ").append(message);
  } else {
    failure.append("The non-blocking messagebox returned an unreported error. The message was:").append(crLf);
    failure.append(message).append(crLf);
    failure.append("Look in the system event log for specifics on the messagebox error.");
  }
  service_.messageBox(0, failure, caption, platform::Critical | platform::OkOnly);
  return platform::NoButton;
}

}  // namespace mavCycEd
