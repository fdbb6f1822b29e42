#include "cycle/SequenceDisplay.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

#include "text/Number.h"

namespace mavCycEd {
namespace {

constexpr int lowestIndent = 1;
constexpr int blockIndent = 3;

std::int16_t shiftedIndent(std::int16_t indent, int by) {
  const int highestIndent = std::numeric_limits<std::int16_t>::max();
  return static_cast<std::int16_t>(std::clamp(indent + by, lowestIndent, highestIndent));
}

}  // namespace

std::string displayLine(int number, int indent, std::string_view atomName) {
  std::string line = text::withTwoDigits(number);
  line.append(static_cast<std::size_t>(indent), ' ');
  line.append(atomName);
  return line;
}

std::string nextDisplayLine(CycleState& cycle, int number, std::string_view atomName) {
  if (atomName == "END") cycle.displayIndent = shiftedIndent(cycle.displayIndent, -blockIndent);
  std::string line = displayLine(number, cycle.displayIndent, atomName);
  if (atomName == "REPEAT") cycle.displayIndent = shiftedIndent(cycle.displayIndent, blockIndent);
  return line;
}

void rebuildSequenceList(CycleState& cycle, platform::ListBox& lstAtomSequence) {
  cycle.displayIndent = lowestIndent;
  std::vector<std::string> lines;
  lines.reserve(static_cast<std::size_t>(cycle.atoms.Count()));
  for (const cAtom& atom : cycle.atoms) {
    lines.push_back(nextDisplayLine(cycle, static_cast<int>(lines.size()) + 1, atom.AtomName()));
  }
  lstAtomSequence.assign(std::move(lines));
}

}  // namespace mavCycEd
