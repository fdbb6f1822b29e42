#include "libxml2/CharacterRules.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "text/LineEnds.h"
#include "text/Utf8.h"

namespace mavCycEd::libxml2 {
namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

bool isAsciiOfXml(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code < 0x80 && (code >= 0x20 || byte == '\t' || byte == '\n' || byte == '\r');
}

// Whether eight bytes are all from U+0020 to U+007F, the common case.
bool isPlainAscii(const char* eightBytes) {
  constexpr std::uint64_t highBits = 0x8080808080808080;
  constexpr std::uint64_t blanks = 0x2020202020202020;
  std::uint64_t word = 0;
  std::memcpy(&word, eightBytes, sizeof word);
  return (word & highBits) == 0 && (((word | highBits) - blanks) & highBits) == highBits;
}

// The number of bytes at the start of the text that are ASCII and allowed.
std::size_t asciiRun(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size()) {
    if (i + 8 <= text.size() && isPlainAscii(text.data() + i)) {
      i += 8;
    } else if (isAsciiOfXml(text[i])) {
      ++i;
    } else {
      break;
    }
  }
  return i;
}

// The number of bytes of the surrogate that the text begins with, encoded as if it were a character; else 0.
std::size_t surrogateSize(std::string_view text) {
  const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const bool surrogate =
      text.size() >= 3 && byte(0) == 0xED && byte(1) >= 0xA0 && byte(1) <= 0xBF && byte(2) >= 0x80 && byte(2) <= 0xBF;
  return surrogate ? 3 : 0;
}

// For a character that is not ASCII, or ASCII that is not allowed.
bool isForbidden(char32_t character) { return character < 0x80 || character == 0xFFFE || character == 0xFFFF; }

bool isNoUtf8(char32_t character, std::size_t size) { return character == replacementCharacter && size == 1; }

// The text without forbidden characters and without bytes that are no UTF-8.
std::string toAllowedCharacters(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t run = asciiRun(text);
    result += text.substr(0, run);
    text.remove_prefix(run);
    if (text.empty()) break;
    std::size_t size = surrogateSize(text);
    if (size == 0) {
      size = text::firstCharacterSize(text);
      const char32_t character = text::firstCharacter(text);
      if (!isForbidden(character)) text::append(result, character);
    }
    text.remove_prefix(size);
  }
  return result;
}

}  // namespace

bool isXmlText(std::string_view text) {
  while (true) {
    text.remove_prefix(asciiRun(text));
    if (text.empty()) return true;
    const std::size_t size = text::firstCharacterSize(text);
    const char32_t character = text::firstCharacter(text);
    if (isForbidden(character) || isNoUtf8(character, size)) return false;
    text.remove_prefix(size);
  }
}

std::string toXmlText(std::string_view text) {
  std::string result = isXmlText(text) ? std::string(text) : toAllowedCharacters(text);
  return result.find('\r') == std::string::npos ? result : text::toLf(result);
}

bool isLayout(const char* text, bool besideMarkup) {
  if (text[std::strspn(text, " \t\r\n")] != '\0') return false;
  return besideMarkup || std::strpbrk(text, "\r\n") != nullptr;
}

}  // namespace mavCycEd::libxml2
