#pragma once

#include <string>
#include <string_view>

namespace mavCycEd {

/// The component's name, as errors and titles carry it.
inline constexpr std::string_view applicationName = "mavCycEd";

/// The library's version: major, minor and revision joined by ".".
std::string_view libraryVersion();

/// What error events carry as the application: name and version. There is no blank between the two parts; hosts
/// match the text as it is.
std::string applicationText();

}  // namespace mavCycEd
