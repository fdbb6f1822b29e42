#include "panels/EditHistory.h"

#include <algorithm>
#include <optional>

namespace mavCycEd {

template <typename Go>
bool EditHistory::go(std::string_view procedure, const Go& goThere) {
  return guarded(errors_, procedure, [&] {
    view_.followLine(screen_.lstAtomSequence.index());
    const std::optional<CycleSelection> selection = goThere();
    if (!selection) return false;
    cycle_.changed = true;
    view_.lstRefresh(0, 0, 0);  // also a line that stands at the margin since it was replaced
    select(*selection);
    return true;
  });
}

bool EditHistory::Undo() {
  return go("Undo", [this] { return cycle_.document.undo(); });
}

bool EditHistory::Redo() {
  return go("Redo", [this] { return cycle_.document.redo(); });
}

void EditHistory::select(CycleSelection wanted) {
  platform::ListBox& variables = screen_.lstVariables;
  const int variable = std::min(wanted.variable, variables.itemCount() - 1);
  if (variables.index() != variable) variables.setIndex(variable);
  platform::ListBox& lines = screen_.lstAtomSequence;
  const int line = std::min(wanted.line, lines.itemCount() - 1);
  if (view_.followedLine() != line || lines.index() != line) lines.setIndex(line);
}

}  // namespace mavCycEd
