#include "cycle/MacroLines.h"

#include <algorithm>

#include "cycle/CycleText.h"
#include "platform/RunTimeError.h"
#include "rules/ObjectTests.h"
#include "text/LineEnds.h"
#include "text/Strings.h"
#include "text/Utf8.h"

namespace mavCycEd {

using text::crLf;

namespace {

constexpr std::string_view header = "[PMA]";

MacroLine::Kind kindOf(std::string_view line) {
  if (line == header) return MacroLine::Kind::Header;
  if (line.starts_with(descriptionMarker)) return MacroLine::Kind::Description;
  return IsAnObject(line) ? MacroLine::Kind::AtomCall : MacroLine::Kind::Variable;
}

// Whether a parameter lacks what would be written. Only lines with more than one parameter are written with values.
bool lacksValue(const std::vector<ParameterSegment>& parameters) {
  return parameters.size() >= 2 && !std::ranges::all_of(parameters, &ParameterSegment::hasValue);
}

std::string atomCall(const AtomLine& line) {
  const auto parameters = line.parameters.segments();
  if (lacksValue(parameters)) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  std::vector<std::string> values;
  if (parameters.size() >= 2) {
    for (const ParameterSegment& parameter : parameters) values.emplace_back(parameter.fields()[1]);
  }
  return line.name + "(" + text::join(values, ",") + ")";
}

}  // namespace

std::string MacroLine::description() const { return text::replaceAll(text, descriptionMarker, ""); }

std::string_view MacroLine::atomName() const { return text.substr(0, text.find('(')); }

std::vector<std::string_view> MacroLine::values() const {
  const std::string_view behind = text.substr(text.find('(') + 1);
  if (!text::hasMoreCharactersThan(behind, 1)) return {};
  return text::split(text::withoutLastCharacter(behind), ',');
}

bool isMacroText(std::string_view text) {
  const std::size_t end = text.find(crLf);
  return end != std::string_view::npos && text.substr(0, end) == header;
}

MacroLine macroLineOf(std::string_view line) { return {kindOf(line), line}; }

std::vector<MacroLine> macroLines(std::string_view text) {
  std::vector<MacroLine> lines;
  for (const std::string_view line : text::split(text, crLf)) lines.push_back(macroLineOf(line));
  return lines;
}

std::optional<std::size_t> lineWithoutName(const Cycle& cycle) {
  const auto found =
      std::ranges::find_if(cycle.lines, [](const AtomLine& line) { return lacksValue(line.parameters.segments()); });
  if (found == cycle.lines.end()) return std::nullopt;
  return static_cast<std::size_t>(found - cycle.lines.begin());
}

std::string macroHeader() { return std::string(header).append(crLf); }

std::string macroTextOf(const Cycle& cycle) {
  std::string macro(descriptionMarker);
  macro.append(cycle.description).append(crLf);
  for (const VariableDefinition& variable : cycle.variables) macro.append(variable.text()).append(crLf);
  for (const AtomLine& line : cycle.lines) macro.append(atomCall(line)).append(crLf);
  return macro;
}

}  // namespace mavCycEd
