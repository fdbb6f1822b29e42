#include "control/modErr.h"

#include "control/Version.h"
#include "text/LineEnds.h"

namespace mavCycEd {

using text::crLf;

namespace {

constexpr std::string_view moduleName = "modErr";

std::string blankLine() { return std::string(crLf).append(crLf); }

// What is told when a procedure of this module fails itself.
std::string ownFailure(std::string_view procedure, std::string_view details, const RunTimeError& error) {
  std::string text = "An error occured in ";
  text.append(moduleName).append(procedure).append(details).append(crLf);
  text.append("Report this error and the circumstances of it's appearence.").append(blankLine());
  text.append("Original error message:").append(crLf);
  text.append("Number: ").append(std::to_string(error.number())).append(crLf);
  text.append("Description: ").append(error.description()).append(crLf);
  text.append("Source: ").append(error.source());
  return text;
}

}  // namespace

void modErr::copyError(const RunTimeError& error) {
  record_ = ErrorRecord();
  if (error.number() == 0) {
    record_.number = static_cast<std::int32_t>(ErrorNumber::InvalidProcedureCall);
    record_.description = "Invalid procedure call or argument. Err.Number cannot be 0";
    record_.source = std::string(moduleName) + ".copyError";
    return;
  }
  record_.number = error.number();
  record_.description = error.description();
  record_.source = error.source();
  if (error.source() != RunTimeError::ownSource) record_.lastSystemError = lastSystemError();
}

// 0 also where the system cannot say: the error itself is to be told all the same.
std::int32_t modErr::lastSystemError() const noexcept {
  try {
    return systemMessage_.lastErrorCode();
  } catch (...) {
    return 0;
  }
}

std::string modErr::GetSystemMessage(std::int32_t lngMsgID) const {
  try {
    const std::string message = systemMessage_.formatMessage(lngMsgID);
    return removeTerminatingCRLF(message.empty() ? "(No such error)" : message);
  } catch (...) {
    return ownFailure(".GetSystemMessage", " for lngMsgID = " + std::to_string(lngMsgID) + ".", currentError());
  }
}

std::string modErr::ErrMsg(const ErrorRecord& error, std::string_view title, std::string_view context) const {
  try {
    std::string text(title);
    text.append(" - version ").append(libraryVersion()).append(blankLine());
    text.append(context).append(blankLine());
    text.append("An error occured.").append(crLf);
    text.append("Number: ").append(std::to_string(error.number)).append(crLf);
    text.append("Source: ").append(error.source).append(crLf);
    text.append("Description: ").append(error.description);
    return text;
  } catch (...) {
    return ownFailure(".ErrMsg", "", currentError());
  }
}

std::string modErr::removeTerminatingCRLF(std::string_view text) {
  if (text.ends_with(crLf)) text.remove_suffix(crLf.size());
  return std::string(text);
}

}  // namespace mavCycEd
