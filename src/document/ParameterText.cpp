#include "mavCycEd/ParameterText.h"

#include "text/Strings.h"

namespace mavCycEd {
namespace {

constexpr char segmentSeparator = '\r';
constexpr char fieldSeparator = ';';

// A name and a value as a segment; without a name it is just the value.
std::string segmentOf(std::string_view name, std::string_view value) {
  std::string segment(name);
  segment.append(1, fieldSeparator).append(value);
  if (segment.starts_with(fieldSeparator)) segment.erase(0, 1);
  return segment;
}

}  // namespace

std::vector<std::string_view> ParameterSegment::fields() const { return text::split(text_, fieldSeparator); }

std::vector<ParameterSegment> ParameterText::segments() const {
  std::vector<ParameterSegment> segments;
  for (const std::string_view piece : text::split(text_, segmentSeparator)) segments.emplace_back(piece);
  return segments;
}

void ParameterText::append(std::string_view name, std::string_view value) {
  if (!text_.empty()) text_ += segmentSeparator;
  text_.append(name).append(1, fieldSeparator).append(value);
}

void ParameterText::endAppending() {
  if (text_.starts_with(fieldSeparator)) text_.erase(0, 1);
}

ParameterText ParameterText::of(const std::vector<std::pair<std::string, std::string>>& parameters) {
  std::string text;
  bool first = true;
  for (const auto& [name, value] : parameters) {
    if (!first) text += segmentSeparator;
    first = false;
    text += segmentOf(name, value);
  }
  return ParameterText(std::move(text));
}

}  // namespace mavCycEd
