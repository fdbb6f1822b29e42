#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/cAtoms.h"
#include "platform/ListLines.h"

namespace mavCycEd {

/// The display line of an atom line: its number in at least two digits, `indent` spaces, its name.
std::string displayLine(int number, int indent, std::string_view atomName);

/// The display lines of the atom lines: what lstAtomSequence shows. A line between "REPEAT" and its "END" stands three
/// spaces further in; blocks are neither paired nor checked, and the indent never goes below 1. Only the indents are
/// kept. They follow the atom lines when one of these members is called, and not before.
class SequenceDisplay : public platform::ListLines {
 public:
  explicit SequenceDisplay(const cAtoms& atoms) : atoms_(atoms) {}

  /// There is a display line for every atom line, and the first stands at an indent of 1.
  void rebuild();
  /// As rebuild(), after one atom line was put in at `index` (from 0).
  void rebuildWith(int index);
  /// As rebuild(), after the atom line at `index`, whose name was `name`, was taken out.
  void rebuildWithout(int index, std::string_view name);
  /// There is one more atom line at the end: it is shown at the current indent, the others stay as they are. Where the
  /// lines did not follow the atom lines before, as after a load that failed, this is a rebuild().
  void append();
  /// The atom line at `index` was replaced: it is shown at an indent of 1 until the next rebuild, the others stay.
  void replace(int index);
  /// No line is shown; the current indent is 1.
  void clear();

  /// The indent at which the next line appended would be shown.
  int currentIndent() const { return currentIndent_; }

  int count() const override { return static_cast<int>(indents_.size()); }
  std::string text(int index) const override;
  int longest() const override;

 private:
  void rebuildFrom(int index);
  const std::string& nameAt(int index) const { return atoms_.Item(index + 1).AtomName(); }
  std::int16_t indentBehind(int index) const;

  const cAtoms& atoms_;
  std::vector<std::int16_t> indents_;
  std::int16_t currentIndent_ = 1;
  bool followsBlocks_ = true;  // false: a line was replaced since the last rebuild
};

}  // namespace mavCycEd
