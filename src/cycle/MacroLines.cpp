#include "cycle/MacroLines.h"

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

// An atom line as a call: the values only where there is more than one parameter.
std::string atomCall(const AtomLine& line) {
  const auto segments = line.parameters.segments();
  std::vector<std::string> values;
  if (segments.size() >= 2) {
    for (const ParameterSegment& segment : segments) {
      const auto fields = segment.fields();
      if (fields.size() < 2) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
      values.emplace_back(fields[1]);
    }
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

std::vector<MacroLine> macroLines(std::string_view text) {
  std::vector<MacroLine> lines;
  for (const std::string_view line : text::split(text, crLf)) lines.push_back({kindOf(line), line});
  return lines;
}

std::string macroTextOf(const Cycle& cycle) {
  std::string macro(descriptionMarker);
  macro.append(cycle.description).append(crLf);
  for (const VariableDefinition& variable : cycle.variables) macro.append(variable.text()).append(crLf);
  for (const AtomLine& line : cycle.lines) macro.append(atomCall(line)).append(crLf);
  return macro;
}

}  // namespace mavCycEd
