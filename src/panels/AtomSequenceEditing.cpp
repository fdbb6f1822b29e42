#include "panels/AtomSequenceEditing.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "panels/StepNames.h"

namespace mavCycEd {
namespace {

/// How long after an atom was chosen the grid's first row is selected.
constexpr int gridTimerMilliseconds = 500;

}  // namespace

void AtomSequenceEditing::cboAtom_Click() {
  guarded(errors_, "cboAtom_Click", [this] {
    grid_.state.ready = false;
    grid_.filling.FillDefaultParams(screen_.cboAtom.text());
    if (!screen_.GrdAtom.cellText(0, 1).empty()) grid_.extraValues.Update_Extra_Params();
    screen_.tmrUpdateGrid.setInterval(gridTimerMilliseconds);
    screen_.tmrUpdateGrid.setEnabled(true);
    grid_.state.ready = true;
  });
}

void AtomSequenceEditing::cmdInset_Click() {
  guarded(errors_, "cmdInset_Click", [this] {
    std::string name = screen_.cboAtom.text();
    if (name.empty() || !valuesStand()) return;
    cycle_.changed = true;
    const int position = list().index() + 1;
    AtomLine line{std::move(name), ParamFiller()};
    if (position >= 1) {
      insertBehind(position, std::move(line));
    } else {
      append(std::move(line));
    }
    // Behind a selected line the new one is selected; after an append it is the first of the sequence.
    list().setIndex(position);
  });
}

// Whether every value of the grid passes its check; the first one that does not gets the focus.
bool AtomSequenceEditing::valuesStand() {
  for (int row = 1; row < screen_.GrdAtom.RowCount(); ++row) {
    if (grid_.validation.Check_Range(screen_.GrdAtom.cellText(1, row), row)) continue;
    screen_.GrdAtom.focusValue(row);
    grid_.state.currentRow = row;
    return false;
  }
  return true;
}

// One step of the operator, whose command shows it.
void AtomSequenceEditing::perform(std::string_view stepName, CycleEdit edit, int lineAfter) {
  const CycleView::ShownByProcedure shown(view_);
  const CycleSelection before = screen_.cycle.selection();
  CycleDocument::Transaction step(cycle_.document, stepName, before);
  cycle_.document.perform(std::move(edit));
  step.setAfter({lineAfter, before.variable});
}

void AtomSequenceEditing::insertBehind(int position, AtomLine line) {
  const auto at = static_cast<std::size_t>(position);
  perform(stepNames::insert, edits::insertLines(at, {std::move(line)}), position);
  view_.lstRefresh({{at, 0, 1}});
}

void AtomSequenceEditing::append(AtomLine line) {
  perform(stepNames::insert, edits::insertLines(cycle_.cycle().lines.size(), {std::move(line)}), 0);
  cycle_.display.append();
  const int shown = list().itemCount();
  if (shown == 0 || shown + 1 != cycle_.display.count()) {
    list().showLines(cycle_.display);
  } else {
    list().spliced(shown, 0, 1);
  }
}

void AtomSequenceEditing::cmdReplace_Click() {
  guarded(errors_, "cmdReplace_Click", [this] {
    if (!valuesStand()) return;
    const int index = list().index();
    if (index < 0) return;
    cycle_.changed = true;
    perform(stepNames::replace,
            edits::replaceLine(static_cast<std::size_t>(index), {screen_.cboAtom.text(), ParamFiller()}), index);
    cycle_.display.replace(index);
    list().spliced(index, 1, 1);
  });
}

void AtomSequenceEditing::cmdDelete_Click() {
  guarded(errors_, "cmdDelete_Click", [this] {
    const int index = list().index();
    if (index < 0) return;
    cycle_.changed = true;
    const int left = static_cast<int>(cycle_.cycle().lines.size()) - 1;
    const auto at = static_cast<std::size_t>(index);
    const int next = std::min(index, left - 1);
    perform(stepNames::remove, edits::removeLines(at, 1), next);
    view_.showLines({{at, 1, 0}});
    list().setIndex(next);
  });
}

ParameterText AtomSequenceEditing::ParamFiller() {
  return guarded(errors_, "ParamFiller", [this] {
    std::vector<std::pair<std::string, std::string>> parameters;
    for (int row = 1; row < screen_.GrdAtom.RowCount(); ++row) {
      parameters.emplace_back(screen_.GrdAtom.cellText(0, row), screen_.GrdAtom.cellText(1, row));
    }
    return ParameterText::of(parameters);
  });
}

}  // namespace mavCycEd
