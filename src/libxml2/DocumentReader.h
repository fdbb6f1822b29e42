#pragma once

#include <libxml/tree.h>

#include <string_view>

#include "libxml2/Ownership.h"

namespace mavCycEd::libxml2 {

/// The document that a text holds; nothing when it is not well-formed or has a document type declaration. Only the
/// root element and what is in it are kept; layout is left out, line ends are line feeds.
Owner<xmlDoc> readDocument(std::string_view text);

}  // namespace mavCycEd::libxml2
