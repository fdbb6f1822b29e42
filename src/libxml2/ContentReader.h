#pragma once

#include <string_view>

#include "platform/XmlContent.h"

namespace mavCycEd::libxml2 {

/// Tells what a text holds, as platform::XmlDocumentFactory::readDocument promises.
bool readContent(std::string_view text, platform::XmlContent& content);

}  // namespace mavCycEd::libxml2
