#pragma once

#include <optional>
#include <string_view>

#include "platform/XmlFault.h"

namespace mavCycEd::libxml2 {

/// Why a text holds no document, as platform::XmlDocumentFactory::faultIn promises.
std::optional<platform::XmlFault> faultIn(std::string_view text);

}  // namespace mavCycEd::libxml2
