#include "cycle/SequenceDisplay.h"

#include <algorithm>
#include <limits>

#include "text/Number.h"

namespace mavCycEd {
namespace {

constexpr std::int16_t lowestIndent = 1;
constexpr int blockIndent = 3;

std::int16_t shiftedIndent(std::int16_t indent, int by) {
  const int highestIndent = std::numeric_limits<std::int16_t>::max();
  return static_cast<std::int16_t>(std::clamp<int>(indent + by, lowestIndent, highestIndent));
}

bool opensBlock(std::string_view name) { return name == "REPEAT"; }
bool closesBlock(std::string_view name) { return name == "END"; }

// The indent of a line, given the one behind the line before it.
std::int16_t indentOf(std::string_view name, std::int16_t indent) {
  return closesBlock(name) ? shiftedIndent(indent, -blockIndent) : indent;
}

// The indent behind a line, given its own.
std::int16_t indentBehindLine(std::string_view name, std::int16_t indent) {
  return opensBlock(name) ? shiftedIndent(indent, blockIndent) : indent;
}

}  // namespace

std::string displayLine(int number, int indent, std::string_view atomName) {
  std::string line = text::withTwoDigits(number);
  line.append(static_cast<std::size_t>(indent), ' ');
  line.append(atomName);
  return line;
}

void SequenceDisplay::rebuild() { rebuildFrom(0); }

// The lines before `index` stand where a rebuild would put them.
void SequenceDisplay::rebuildFrom(int index) {
  const int count = atoms_.Count();
  std::int16_t indent = index == 0 ? lowestIndent : indentBehind(index - 1);
  indents_.resize(static_cast<std::size_t>(count));
  for (int i = index; i < count; ++i) {
    const std::string& name = nameAt(i);
    indents_[static_cast<std::size_t>(i)] = indentOf(name, indent);
    indent = indentBehindLine(name, indents_[static_cast<std::size_t>(i)]);
  }
  currentIndent_ = indent;
  followsBlocks_ = true;
}

void SequenceDisplay::rebuildWith(int index) {
  const std::string& name = nameAt(index);
  if (!followsBlocks_ || count() + 1 != atoms_.Count()) {
    rebuild();
  } else if (opensBlock(name) || closesBlock(name)) {
    rebuildFrom(index);
  } else {
    indents_.insert(indents_.begin() + index, index == 0 ? lowestIndent : indentBehind(index - 1));
  }
}

void SequenceDisplay::rebuildWithout(int index, std::string_view name) {
  if (!followsBlocks_ || count() - 1 != atoms_.Count()) {
    rebuild();
  } else if (opensBlock(name) || closesBlock(name)) {
    rebuildFrom(index);
  } else {
    indents_.erase(indents_.begin() + index);
  }
}

void SequenceDisplay::append() {
  if (count() + 1 != atoms_.Count()) return rebuild();
  const std::string& name = nameAt(count());
  indents_.push_back(indentOf(name, currentIndent_));
  currentIndent_ = indentBehindLine(name, indents_.back());
}

void SequenceDisplay::replace(int index) {
  indents_.at(static_cast<std::size_t>(index)) = lowestIndent;
  followsBlocks_ = false;
}

void SequenceDisplay::clear() {
  indents_.clear();
  currentIndent_ = lowestIndent;
  followsBlocks_ = true;
}

std::string SequenceDisplay::text(int index) const {
  return displayLine(index + 1, indents_[static_cast<std::size_t>(index)], nameAt(index));
}

int SequenceDisplay::longest() const {
  int longest = -1;
  std::size_t most = 0;
  for (int i = 0; i < count(); ++i) {
    const std::size_t size = static_cast<std::size_t>(indents_[static_cast<std::size_t>(i)]) + nameAt(i).size();
    if (longest >= 0 && size <= most) continue;
    longest = i;
    most = size;
  }
  return longest;
}

std::int16_t SequenceDisplay::indentBehind(int index) const {
  return indentBehindLine(nameAt(index), indents_[static_cast<std::size_t>(index)]);
}

}  // namespace mavCycEd
