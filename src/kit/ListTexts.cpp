#include "kit/ListTexts.h"

#include "platform/RunTimeError.h"

namespace mavCycEd::kit {

int ListTexts::checked(int index) const {
  if (index < 0 || index >= count()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  return index;
}

}  // namespace mavCycEd::kit
