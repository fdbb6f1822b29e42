#include "kit/TypedLine.h"

#include "text/LineEnds.h"
#include "text/Utf8.h"

namespace mavCycEd::kit {

TypedLine onOneLine(const TypedLine& line) {
  const std::string_view text = line.text;
  return {text::onOneLine(text), text::onOneLine(text.substr(0, line.cursor)).size()};
}

TypedLine rewritten(const TypedLine& line, std::string_view text) {
  std::size_t kept = 0;
  std::size_t keptBeforeCursor = 0;
  std::string_view rest = line.text;
  while (!rest.empty()) {
    if (line.text.size() - rest.size() <= line.cursor) keptBeforeCursor = kept;
    const std::string_view character = rest.substr(0, text::firstCharacterSize(rest));
    if (text.substr(kept).starts_with(character)) kept += character.size();
    rest.remove_prefix(character.size());
  }
  const bool isShortened = kept == text.size();
  const bool isWithin = line.cursor < line.text.size();
  return {std::string(text), isShortened && isWithin ? keptBeforeCursor : text.size()};
}

}  // namespace mavCycEd::kit
