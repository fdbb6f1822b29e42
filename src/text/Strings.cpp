#include "text/Strings.h"

#include <cstddef>

#include "text/Utf8.h"

namespace mavCycEd::text {
namespace {

template <typename Separator>
std::vector<std::string_view> splitAt(std::string_view text, const Separator& separator, std::size_t separatorSize) {
  std::vector<std::string_view> pieces;
  if (text.empty()) return pieces;
  std::size_t begin = 0;
  for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator, begin)) {
    pieces.push_back(text.substr(begin, end - begin));
    begin = end + separatorSize;
  }
  pieces.push_back(text.substr(begin));
  return pieces;
}

}  // namespace

std::vector<std::string_view> split(std::string_view text, char separator) { return splitAt(text, separator, 1); }

std::vector<std::string_view> split(std::string_view text, std::string_view separator) {
  return splitAt(text, separator, separator.size());
}

std::string join(const std::vector<std::string>& texts, std::string_view separator) {
  std::string result;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i > 0) result += separator;
    result += texts[i];
  }
  return result;
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view by) {
  std::string result;
  result.reserve(text.size());
  std::size_t begin = 0;
  for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, begin)) {
    result += text.substr(begin, at - begin);
    result += by;
    begin = at + what.size();
  }
  result += text.substr(begin);
  return result;
}

std::string withoutCharacters(std::string_view text, std::u32string_view characters) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t size = firstCharacterSize(text);
    if (characters.find(firstCharacter(text)) == std::u32string_view::npos) result += text.substr(0, size);
    text.remove_prefix(size);
  }
  return result;
}

std::string_view trimSpaces(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace mavCycEd::text
