#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "mavCycEd/Cycle.h"
#include "platform/ListLines.h"

namespace mavCycEd {

/// The display line of an atom line: its number in at least two digits, `indent` spaces, its name.
std::string displayLine(int number, int indent, std::string_view atomName);

/// The display lines of a cycle: what lstAtomSequence shows. A line between "REPEAT" and its "END" stands three spaces
/// further in; blocks are neither paired nor checked, and the indent never goes below 1. Only the indents are kept.
/// They follow the cycle's lines when one of these members is called, and not before.
class SequenceDisplay : public platform::ListLines {
 public:
  explicit SequenceDisplay(const Cycle& cycle) : cycle_(cycle) {}

  /// There is a display line for every atom line, and the first stands at an indent of 1.
  void rebuild();
  /// As rebuild(), after `added` lines have come in place of `removed` at `at`.
  void rebuildAround(std::size_t at, std::size_t removed, std::size_t added);
  /// There is one more atom line at the end: it is shown at the current indent, the others stay as they are. Where the
  /// lines did not follow the atom lines before, as after a load that failed, this is a rebuild().
  void append();
  /// The atom line at `index` was replaced: it is shown at an indent of 1 until the next rebuild, the others stay.
  void replace(int index);
  /// No line is shown; the current indent is 1.
  void clear();

  /// Whether every line stands where a rebuild() would put it.
  bool isAsRebuilt() const { return followsBlocks_ && shown_.size() == cycle_.lines.size(); }
  /// The indent at which the next line appended would be shown.
  int currentIndent() const { return currentIndent_; }

  int count() const override { return static_cast<int>(shown_.size()); }
  std::string text(int index) const override;
  int longest() const override;

 private:
  struct Shown {
    std::int16_t indent = 1;
    bool isBlockLine = false;
  };
  void rebuildFrom(std::size_t index);
  Shown shownAt(std::size_t index, std::int16_t indent) const;
  std::int16_t indentBehind(std::size_t index) const;

  const Cycle& cycle_;
  std::vector<Shown> shown_;
  std::int16_t currentIndent_ = 1;
  bool followsBlocks_ = true;  // false: a line was replaced since the last rebuild
};

}  // namespace mavCycEd
