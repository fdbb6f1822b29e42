#include "mavCycEd/MacroLosses.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "cycle/MacroLines.h"

namespace mavCycEd {
namespace {

constexpr std::string_view lineEnds = "\r\n";

bool hasSeveralLines(std::string_view description) {
  constexpr std::string_view blanks = " \t\r\n";
  const std::size_t begin = description.find_first_not_of(blanks);
  if (begin == std::string_view::npos) return false;
  const std::size_t end = description.find_last_not_of(blanks);
  return description.substr(begin, end - begin).find_first_of(lineEnds) != std::string_view::npos;
}

bool isCallName(const std::string& name) {
  const std::string call = name + "()";
  const MacroLine line = macroLineOf(call);
  return line.kind == MacroLine::Kind::AtomCall && line.atomName() == name;
}

bool isTorn(const ParameterSegment& parameter) {
  return parameter.value().find_first_of(",\r\n") != std::string_view::npos;
}

}  // namespace

bool MacroLosses::empty() const {
  return !description && droppedValues.empty() && noCalls.empty() && tornValues.empty() && otherVariables.empty();
}

MacroLosses lostInMacroText(const Cycle& cycle) {
  MacroLosses losses;
  losses.description = hasSeveralLines(cycle.description);
  for (std::size_t i = 0; i < cycle.lines.size(); ++i) {
    const AtomLine& line = cycle.lines[i];
    const auto parameters = line.parameters.segments();
    if (parameters.size() == 1 && !parameters.front().value().empty()) losses.droppedValues.push_back(i);
    if (!isCallName(line.name)) losses.noCalls.push_back(i);
    if (parameters.size() > 1 && std::ranges::any_of(parameters, isTorn)) losses.tornValues.push_back(i);
  }
  for (std::size_t i = 0; i < cycle.variables.size(); ++i) {
    const MacroLine line = macroLineOf(cycle.variables[i].text());
    if (line.kind != MacroLine::Kind::Variable) losses.otherVariables.push_back(i);
  }
  return losses;
}

}  // namespace mavCycEd
