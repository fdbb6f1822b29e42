#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Rules about characters in UTF-8 texts. A character is a Unicode code point, never a byte. Bytes that are no UTF-8
/// count as one character each and are never changed or merged.
namespace mavCycEd::text {

/// The number of bytes of the character that `text` begins with; 0 for an empty text.
std::size_t firstCharacterSize(std::string_view text);

/// The code point that `text` begins with: U+FFFD for a byte that is no UTF-8, 0 for an empty text.
char32_t firstCharacter(std::string_view text);

/// The number of characters.
std::size_t characterCount(std::string_view text);

/// Whether the text has more than `count` characters; it counts no further than needed.
bool hasMoreCharactersThan(std::string_view text, std::size_t count);

/// The text without its last character; an empty text stays empty.
std::string_view withoutLastCharacter(std::string_view text);

/// Adds a code point to a text.
void append(std::string& text, char32_t character);

/// Whether the bytes are UTF-8 as the Unicode standard defines it (no surrogates, no overlong forms).
bool isUtf8(std::string_view bytes);

}  // namespace mavCycEd::text
