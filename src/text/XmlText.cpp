#include "text/XmlText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "text/LineEnds.h"
#include "text/Utf8.h"

namespace mavCycEd::text {
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
      size = firstCharacterSize(text);
      const char32_t character = firstCharacter(text);
      if (!isForbidden(character)) append(result, character);
    }
    text.remove_prefix(size);
  }
  return result;
}

// ASCII characters that stand for themselves between two tags, but for ">".
constexpr std::array<bool, 256> makePlainTable() {
  std::array<bool, 256> plain{};
  for (std::size_t code = 0x20; code < 0x80; ++code) plain[code] = code != '<' && code != '&' && code != '>';
  return plain;
}
constexpr std::array<bool, 256> isPlain = makePlainTable();

}  // namespace

std::size_t xmlTextSize(std::string_view text) {
  const std::size_t whole = text.size();
  while (true) {
    text.remove_prefix(asciiRun(text));
    if (text.empty()) return whole;
    const std::size_t size = firstCharacterSize(text);
    const char32_t character = firstCharacter(text);
    if (isForbidden(character) || isNoUtf8(character, size)) return whole - text.size();
    text.remove_prefix(size);
  }
}

std::optional<char32_t> forbiddenCharacter(std::string_view text) {
  if (text.empty()) return std::nullopt;
  if (surrogateSize(text) != 0) {
    const auto bits = [text](std::size_t i) {
      return static_cast<char32_t>(static_cast<unsigned char>(text[i])) & 0x3F;
    };
    return 0xD000 | bits(1) << 6 | bits(2);
  }
  const char32_t character = firstCharacter(text);
  const bool allowed = character < 0x80 ? isAsciiOfXml(text.front()) : !isForbidden(character);
  if (allowed) return std::nullopt;
  return character;
}

std::string toXmlText(std::string_view text) {
  std::string result = isXmlText(text) ? std::string(text) : toAllowedCharacters(text);
  return result.find('\r') == std::string::npos ? result : toLf(result);
}

bool appendPlainXml(std::string& xml, std::string_view text) {
  constexpr std::string_view sectionEnd = "]]>";
  std::size_t copied = 0;
  bool checked = false;  // the rest has no byte that is no XML
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (isPlain[byte] || (byte >= 0x80 && checked)) continue;
    if (byte >= 0x80) {
      checked = isXmlText(text.substr(i));
      if (!checked) return false;
    } else if (byte == '>') {
      if (text.substr(0, i + 1).ends_with(sectionEnd)) return false;
      xml.append(text, copied, i - copied).append("&gt;");
      copied = i + 1;
    } else {
      return false;
    }
  }
  xml.append(text, copied);
  return true;
}

void appendEscapedXml(std::string& xml, std::string_view text) {
  std::size_t copied = 0;
  for (std::size_t i = text.find_first_of("<>&"); i != std::string_view::npos; i = text.find_first_of("<>&", i + 1)) {
    xml.append(text, copied, i - copied);
    xml.append(text[i] == '<' ? "&lt;" : text[i] == '>' ? "&gt;" : "&amp;");
    copied = i + 1;
  }
  xml.append(text, copied);
}

}  // namespace mavCycEd::text
