#pragma once

#include <string>
#include <string_view>

/// Which characters an XML document holds, and which of them are only layout.
namespace mavCycEd::libxml2 {

/// Whether a text is UTF-8 throughout and has no character that XML 1.0 forbids.
bool isXmlText(std::string_view text);

/// The text as a document holds it: forbidden characters (surrogates among them) are left out, bytes that are no UTF-8
/// become U+FFFD, line ends become single line feeds.
std::string toXmlText(std::string_view text);

/// Whether a text of a document, which ends with a zero, is only layout: white space that stands beside an element or
/// a comment, or that holds a line end.
bool isLayout(const char* text, bool besideMarkup);

}  // namespace mavCycEd::libxml2
