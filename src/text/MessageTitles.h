#pragma once

#include <string_view>

namespace mavCycEd::text {

/// The title of every message box of the control.
inline constexpr std::string_view controlTitle = "cycle editor component - ctlCycEd Control";
/// The title of every message box of the variable dialog.
inline constexpr std::string_view dialogTitle = "cycle editor component - New Parameter";

}  // namespace mavCycEd::text
