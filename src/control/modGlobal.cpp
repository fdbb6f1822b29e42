#include "control/modGlobal.h"

#include <cstdint>
#include <string>

#include "platform/RunTimeError.h"
#include "text/LineEnds.h"

namespace mavCycEd::modGlobal {

bool formLoaded(const platform::ModalDialog* form, std::string_view caller) {
  if (form == nullptr) {
    std::string text = "Cannot test frmFrom. frmForm does not evaluate to type Form.";
    text.append(text::crLf).append("Calling method: ").append(caller);
    throw RunTimeError(static_cast<std::int32_t>(ErrorNumber::TypeMismatch), text);
  }
  return form->isLoaded();
}

}  // namespace mavCycEd::modGlobal
