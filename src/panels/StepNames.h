#pragma once

#include <string_view>

/// What the steps are called that an operator can take back, as hosts show them in their menus ("Undo Insert").
namespace mavCycEd::stepNames {

inline constexpr std::string_view insert = "Insert";
inline constexpr std::string_view replace = "Replace";
inline constexpr std::string_view remove = "Delete";
inline constexpr std::string_view insertVariable = "Insert Variable";
inline constexpr std::string_view changeVariable = "Change Variable";
inline constexpr std::string_view deleteVariable = "Delete Variable";
inline constexpr std::string_view changeDescription = "Change Description";

}  // namespace mavCycEd::stepNames
