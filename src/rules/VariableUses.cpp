#include "mavCycEd/VariableUses.h"

#include <algorithm>

#include "text/CaseFold.h"
#include "text/Strings.h"
#include "text/Utf8.h"

namespace mavCycEd {
namespace {

// Both texts case-folded.
bool refersToFolded(std::string_view value, std::string_view name) {
  if (name.empty() || value.find(name) == std::string_view::npos) return false;
  if (value == name) return true;
  const std::string sum = text::replaceAll(value, "-", "+");
  return std::ranges::any_of(text::split(sum, '+'),
                             [name](std::string_view term) { return text::trimSpaces(term) == name; });
}

std::string_view shownName(std::string_view segment) {
  const std::size_t unit = segment.find('(');
  if (unit != std::string_view::npos) return text::trimSpaces(segment.substr(0, unit));
  return text::withoutLastCharacter(segment.substr(0, segment.find(';')));
}

}  // namespace

bool refersTo(std::string_view value, std::string_view variableName) {
  return refersToFolded(text::foldCase(text::trimSpaces(value)), text::foldCase(variableName));
}

std::vector<VariableUse> usesOf(std::string_view variableName, const Cycle& cycle) {
  const std::string name = text::foldCase(variableName);
  std::vector<VariableUse> uses;
  for (std::size_t line = 0; line < cycle.lines.size(); ++line) {
    std::size_t parameter = 0;
    cycle.lines[line].parameters.forEachSegment([&](const ParameterSegment& each) {
      const ParameterSegment segment(text::trimSpaces(each.text()));
      const bool refers = segment.hasValue() && refersToFolded(text::foldCase(text::trimSpaces(segment.value())), name);
      if (refers) uses.push_back({line, parameter, std::string(shownName(segment.text()))});
      ++parameter;
    });
  }
  return uses;
}

}  // namespace mavCycEd
