#pragma once

/// Which texts of an XML document are only layout.
namespace mavCycEd::libxml2 {

/// Whether a text of a document, which ends with a zero, is only layout: white space that stands beside an element or
/// a comment, or that holds a line end.
bool isLayout(const char* text, bool besideMarkup);

}  // namespace mavCycEd::libxml2
