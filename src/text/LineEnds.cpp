#include "text/LineEnds.h"

#include <cstddef>

#include "text/Utf8.h"

namespace mavCycEd::text {
namespace {

bool isLineEnd(char32_t character) { return character == U'\r' || character == U'\n'; }

bool isTypedLineEnd(char32_t character) {
  switch (character) {
    case U'\u2028':
    case U'\u2029':
    case char32_t{0xFDD0}:
    case char32_t{0xFDD1}: return true;
    default: return isLineEnd(character);
  }
}

bool isControl(char32_t character) { return character < 0x20 || (character >= 0x7F && character < 0xA0); }

std::string withCrLf(std::string_view text, bool (*isEnd)(char32_t)) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    std::size_t size = firstCharacterSize(text);
    if (isEnd(firstCharacter(text))) {
      if (text.starts_with(crLf)) size = crLf.size();
      result += crLf;
    } else {
      result += text.substr(0, size);
    }
    text.remove_prefix(size);
  }
  return result;
}

}  // namespace

std::string toCrLf(std::string_view text) { return withCrLf(text, isLineEnd); }

std::string typedToCrLf(std::string_view text) { return withCrLf(text, isTypedLineEnd); }

std::string onOneLine(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const char32_t character = firstCharacter(text);
    const std::size_t size = text.starts_with(crLf) ? crLf.size() : firstCharacterSize(text);
    if (isTypedLineEnd(character) || isControl(character)) {
      result += ' ';
    } else {
      result += text.substr(0, size);
    }
    text.remove_prefix(size);
  }
  return result;
}

std::string toLf(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r') {
      result.push_back(text[i]);
      continue;
    }
    result.push_back('\n');
    if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
  }
  return result;
}

}  // namespace mavCycEd::text
