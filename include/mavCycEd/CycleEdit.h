#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mavCycEd/Cycle.h"

namespace mavCycEd {

/// A place in a list where items go and others come: `removed` items from `at` on go, `added` come in their place.
template <typename Item>
struct Splice {
  std::size_t at = 0;
  std::size_t removed = 0;
  std::vector<Item> added;
};

/// The same for the characters of a text, in bytes.
struct TextSplice {
  std::size_t at = 0;
  std::size_t removed = 0;
  std::string added;
};

using LineSplice = Splice<AtomLine>;
using PlaceSplice = Splice<LinePlace>;
using VariableSplice = Splice<VariableDefinition>;

/// A change of a cycle as data: splices, carried out one after the other. Applied to a cycle it becomes its own
/// inverse.
class CycleEdit {
 public:
  using Change = std::variant<LineSplice, PlaceSplice, VariableSplice, TextSplice>;

  CycleEdit() = default;
  explicit CycleEdit(Change change) { changes_.push_back(std::move(change)); }

  /// Adds what is done behind the rest.
  CycleEdit& then(CycleEdit other);

  bool empty() const { return changes_.empty(); }
  const std::vector<Change>& changes() const { return changes_; }

  /// Carries the edit out; from then on it takes the cycle back to where it was. Changes that change nothing are
  /// dropped. A change that reaches beyond its list is std::out_of_range, and leaves cycle and edit as they were.
  void apply(Cycle& cycle);

 private:
  std::vector<Change> changes_;
};

/// The usual edits.
namespace edits {

/// Puts lines in at a position. What belongs to positions stays where it is.
CycleEdit insertLines(std::size_t at, std::vector<AtomLine> lines);
CycleEdit replaceLine(std::size_t at, AtomLine line);
/// Takes lines out, and what belongs to their positions.
CycleEdit removeLines(std::size_t at, std::size_t count);
CycleEdit setPlace(std::size_t at, LinePlace place);

CycleEdit insertVariable(std::size_t at, VariableDefinition variable);
CycleEdit replaceVariable(std::size_t at, VariableDefinition variable);
CycleEdit removeVariable(std::size_t at);

/// Changes `before`, the description as it is, to another text; only what differs is kept.
CycleEdit changeDescription(std::string_view before, std::string_view text);

}  // namespace edits

}  // namespace mavCycEd
