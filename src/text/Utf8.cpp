#include "text/Utf8.h"

namespace mavCycEd::text {
namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

struct Decoded {
  char32_t character;
  std::size_t size;
  bool valid;
};

constexpr Decoded noCharacter{replacementCharacter, 1, false};

// How a sequence begins: its length, the bits its first byte contributes, and the lowest code point that needs it.
struct Lead {
  std::size_t size;
  char32_t bits;
  char32_t lowest;
};

Lead leadOf(unsigned char byte) {
  if (byte < 0x80) return {1, byte, 0};
  if (byte >= 0xC2 && byte <= 0xDF) return {2, byte & 0x1FU, 0x80};
  if (byte >= 0xE0 && byte <= 0xEF) return {3, byte & 0x0FU, 0x800};
  if (byte >= 0xF0 && byte <= 0xF4) return {4, byte & 0x07U, 0x10000};
  return {0, 0, 0};
}

// The character at the start of a text that is not empty.
Decoded decode(std::string_view text) {
  const Lead lead = leadOf(static_cast<unsigned char>(text.front()));
  if (lead.size == 0 || text.size() < lead.size) return noCharacter;
  char32_t character = lead.bits;
  for (std::size_t i = 1; i < lead.size; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0U) != 0x80U) return noCharacter;
    character = (character << 6U) | (byte & 0x3FU);
  }
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < lead.lowest || surrogate || character > 0x10FFFF) return noCharacter;
  return {character, lead.size, true};
}

}  // namespace

std::size_t firstCharacterSize(std::string_view text) { return text.empty() ? 0 : decode(text).size; }

char32_t firstCharacter(std::string_view text) { return text.empty() ? U'\0' : decode(text).character; }

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(firstCharacterSize(text));
  return count;
}

bool hasMoreCharactersThan(std::string_view text, std::size_t count) {
  for (; count > 0 && !text.empty(); --count) text.remove_prefix(firstCharacterSize(text));
  return !text.empty();
}

std::string_view withoutLastCharacter(std::string_view text) {
  for (std::size_t size = 4; size > 1; --size) {
    if (text.size() < size) continue;
    const Decoded last = decode(text.substr(text.size() - size));
    if (last.valid && last.size == size) return text.substr(0, text.size() - size);
  }
  return text.substr(0, text.empty() ? 0 : text.size() - 1);
}

void append(std::string& text, char32_t character) {
  const auto byte = [&text](char32_t bits) { text.push_back(static_cast<char>(static_cast<unsigned char>(bits))); };
  const auto continuation = [&byte](char32_t bits) { byte(0x80U | (bits & 0x3FU)); };
  if (character < 0x80) {
    byte(character);
  } else if (character < 0x800) {
    byte(0xC0U | (character >> 6U));
    continuation(character);
  } else if (character < 0x10000) {
    byte(0xE0U | (character >> 12U));
    continuation(character >> 6U);
    continuation(character);
  } else {
    byte(0xF0U | (character >> 18U));
    continuation(character >> 12U);
    continuation(character >> 6U);
    continuation(character);
  }
}

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const Decoded decoded = decode(bytes);
    if (!decoded.valid) return false;
    bytes.remove_prefix(decoded.size);
  }
  return true;
}

}  // namespace mavCycEd::text
