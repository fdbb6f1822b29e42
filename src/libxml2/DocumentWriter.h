#pragma once

#include <libxml/tree.h>

#include <string>

namespace mavCycEd::libxml2 {

/// The document as text, in the form that platform::XmlDocument::xml promises. libxml2 indents up to 30 levels; what
/// is deeper stands as far in as level 30.
std::string writeDocument(xmlDoc& document);

}  // namespace mavCycEd::libxml2
