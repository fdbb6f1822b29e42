#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What a text is to XML 1.0, and how a document that is written out holds it.
namespace mavCycEd::text {

/// The number of bytes at the start of a text that are UTF-8 and have no character that XML 1.0 forbids.
std::size_t xmlTextSize(std::string_view text);

/// Whether a text is UTF-8 throughout and has no character that XML 1.0 forbids.
inline bool isXmlText(std::string_view text) { return xmlTextSize(text) == text.size(); }

/// The character that XML forbids and that a text begins with; nothing where the text begins with another one, or with
/// bytes that are no UTF-8. A surrogate that is encoded by itself counts as such a character.
std::optional<char32_t> forbiddenCharacter(std::string_view text);

/// The text as a document holds it: forbidden characters (surrogates among them) are left out, bytes that are no UTF-8
/// become U+FFFD, line ends become single line feeds.
std::string toXmlText(std::string_view text);

/// Adds a text to what stands between two tags, so that it reads as it would if it had been parsed there and written
/// out again. False, and nothing of use added, for a text that means more than itself there: one with markup, control
/// characters (line ends among them) or bytes that are no UTF-8.
bool appendPlainXml(std::string& xml, std::string_view text);

/// Adds a text that a document holds, as it is written out between two tags.
void appendEscapedXml(std::string& xml, std::string_view text);

}  // namespace mavCycEd::text
