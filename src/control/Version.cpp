#include "control/Version.h"

namespace mavCycEd {

std::string_view libraryVersion() { return MAVCYCED_VERSION; }

std::string applicationText() { return std::string(applicationName).append("Version: ").append(libraryVersion()); }

}  // namespace mavCycEd
