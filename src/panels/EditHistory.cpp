#include "panels/EditHistory.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace mavCycEd {

template <typename Go>
bool EditHistory::go(std::string_view procedure, const Go& goThere) {
  return guarded(errors_, procedure, [&] {
    view_.followLine(screen_.lstAtomSequence.index());
    const std::optional<CycleSelection> selection = goThere();
    if (!selection) return false;
    cycle_.changed = true;
    // A line may stand at the margin since it was replaced, and after a load that failed no line is shown.
    const bool isShown = screen_.lstAtomSequence.itemCount() == cycle_.display.count();
    if (!isShown || !cycle_.display.isAsRebuilt()) view_.lstRefresh({});
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

bool EditHistory::Perform(CycleEdit edit, std::string_view stepName) {
  return go("Perform", [&]() -> std::optional<CycleSelection> {
    const CycleSelection before = screen_.selection();
    const CycleDocument::Revision revision = cycle_.document.revision();
    CycleDocument::Transaction step(cycle_.document, stepName, before);
    cycle_.document.perform(std::move(edit));
    if (cycle_.document.revision() == revision) return std::nullopt;
    const int followed = view_.followedLine();
    const CycleSelection after{followed >= 0 ? followed : before.line, screen_.lstVariables.index()};
    step.setAfter(after);
    return after;
  });
}

// No value is checked on the way into the grid: it may be that of an atom nobody knows, in an edit that is open.
void EditHistory::select(CycleSelection wanted) {
  platform::ListBox& variables = screen_.lstVariables;
  const int variable = std::min(wanted.variable, variables.itemCount() - 1);
  if (variables.index() != variable) variables.setIndex(variable);
  platform::ListBox& lines = screen_.lstAtomSequence;
  const int line = std::min(wanted.line, lines.itemCount() - 1);
  if (view_.followedLine() == line && lines.index() == line) return;
  const bool ready = std::exchange(grid_.ready, false);
  lines.setIndex(line);
  grid_.ready = ready;
}

}  // namespace mavCycEd
