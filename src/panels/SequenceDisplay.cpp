#include "panels/SequenceDisplay.h"

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

}  // namespace

std::string displayLine(int number, int indent, std::string_view atomName) {
  std::string line = text::withTwoDigits(number);
  line.append(static_cast<std::size_t>(indent), ' ');
  line.append(atomName);
  return line;
}

// How a line is shown, given the indent behind the line before it.
SequenceDisplay::Shown SequenceDisplay::shownAt(std::size_t index, std::int16_t indent) const {
  const AtomLine& line = cycle_.lines[index];
  if (closesBlock(line)) return {shiftedIndent(indent, -blockIndent), true};
  return {indent, opensBlock(line)};
}

// The indent behind a line, given its own.
std::int16_t SequenceDisplay::indentBehind(std::size_t index) const {
  const std::int16_t indent = shown_[index].indent;
  return opensBlock(cycle_.lines[index]) ? shiftedIndent(indent, blockIndent) : indent;
}

void SequenceDisplay::rebuild() { rebuildFrom(0); }

// The lines before `index` stand where a rebuild would put them.
void SequenceDisplay::rebuildFrom(std::size_t index) {
  shown_.resize(cycle_.lines.size());
  std::int16_t indent = index == 0 ? lowestIndent : indentBehind(index - 1);
  for (std::size_t i = index; i < shown_.size(); ++i) {
    shown_[i] = shownAt(i, indent);
    indent = indentBehind(i);
  }
  currentIndent_ = indent;
  followsBlocks_ = true;
}

void SequenceDisplay::rebuildAround(std::size_t at, std::size_t removed, std::size_t added) {
  const bool fits = at + removed <= shown_.size() && shown_.size() - removed + added == cycle_.lines.size();
  if (!followsBlocks_ || !fits) return rebuild();
  const auto begin = shown_.begin() + static_cast<std::ptrdiff_t>(at);
  const auto end = begin + static_cast<std::ptrdiff_t>(removed);
  bool touchesBlocks = std::any_of(begin, end, [](const Shown& each) { return each.isBlockLine; });
  const auto first = cycle_.lines.begin() + static_cast<std::ptrdiff_t>(at);
  touchesBlocks =
      touchesBlocks || std::any_of(first, first + static_cast<std::ptrdiff_t>(added),
                                   [](const AtomLine& each) { return opensBlock(each) || closesBlock(each); });
  const Shown plain{at == 0 ? lowestIndent : indentBehind(at - 1), false};
  shown_.insert(shown_.erase(begin, end), added, plain);
  if (touchesBlocks) rebuildFrom(at);
}

void SequenceDisplay::append() {
  if (shown_.size() + 1 != cycle_.lines.size()) return rebuild();
  const std::size_t index = shown_.size();
  shown_.push_back(shownAt(index, currentIndent_));
  currentIndent_ = indentBehind(index);
}

void SequenceDisplay::replace(int index) {
  shown_.at(static_cast<std::size_t>(index)) = {lowestIndent, false};
  followsBlocks_ = false;
}

void SequenceDisplay::clear() {
  shown_.clear();
  currentIndent_ = lowestIndent;
  followsBlocks_ = true;
}

std::string SequenceDisplay::text(int index) const {
  const auto at = static_cast<std::size_t>(index);
  if (at >= cycle_.lines.size()) return {};  // the lines have not followed yet
  return displayLine(index + 1, shown_[at].indent, cycle_.lines[at].name);
}

int SequenceDisplay::longest() const {
  int longest = -1;
  std::size_t most = 0;
  for (std::size_t i = 0; i < std::min(shown_.size(), cycle_.lines.size()); ++i) {
    const std::size_t size = static_cast<std::size_t>(shown_[i].indent) + cycle_.lines[i].name.size();
    if (longest >= 0 && size <= most) continue;
    longest = static_cast<int>(i);
    most = size;
  }
  return longest;
}

}  // namespace mavCycEd
