#pragma once

#include <string_view>

#include "platform/ModalDialog.h"

namespace mavCycEd::modGlobal {

/// Whether a form is among the loaded ones. "No form" is run-time error 13, with the caller's name in its text.
bool formLoaded(const platform::ModalDialog* form, std::string_view caller);

}  // namespace mavCycEd::modGlobal
