#include "editing/AtomSequenceEditing.h"

#include <utility>

namespace mavCycEd {
namespace {

/// How long after an atom was chosen the grid's first row is selected.
constexpr int gridTimerMilliseconds = 500;

// A grid row as one segment of a parameter text. An empty name leaves just the value.
std::string segment(const std::string& name, const std::string& value) {
  std::string text = name + ";" + value + ";";
  if (text.starts_with(';')) text.erase(0, 1);
  if (text.ends_with(';')) text.pop_back();
  return text;
}

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
    cycle_.edited();
    const int position = screen_.lstAtomSequence.index() + 1;
    std::string parameters = ParamFiller();
    if (position >= 1) {
      insertBehind(position, std::move(name), std::move(parameters));
      lstRefresh(position);
    } else {
      append(std::move(name), std::move(parameters));
    }
    // Behind a selected line the new one is selected; after an append it is the first of the sequence.
    screen_.lstAtomSequence.setIndex(position);
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

// Only name and parameters move down by one position: duration and group index belong to the position.
void AtomSequenceEditing::insertBehind(int position, std::string name, std::string parameters) {
  cAtoms& atoms = cycle_.atoms;
  atoms.Add({}, {}, {}, std::string());
  for (int j = atoms.Count(); j >= position + 2; --j) {
    atoms.Item(j).takeNameAndParameters(atoms.Item(j - 1));
  }
  cAtom& inserted = atoms.Item(position + 1);
  inserted.setAtomName(std::move(name));
  inserted.setAtomParameters(std::move(parameters));
}

void AtomSequenceEditing::append(std::string name, std::string parameters) {
  cycle_.atoms.Add(std::move(name), {}, {}, std::move(parameters));
  cycle_.display.append();
  const int shown = screen_.lstAtomSequence.itemCount();
  if (shown == 0 || shown + 1 != cycle_.display.count()) {
    screen_.lstAtomSequence.showLines(cycle_.display);
  } else {
    screen_.lstAtomSequence.spliced(shown, 0, 1);
  }
}

void AtomSequenceEditing::cmdReplace_Click() {
  guarded(errors_, "cmdReplace_Click", [this] {
    if (!valuesStand()) return;
    const int index = screen_.lstAtomSequence.index();
    if (index < 0) return;
    cycle_.edited();
    cAtom& atom = cycle_.atoms.Item(index + 1);
    atom.setAtomName(screen_.cboAtom.text());
    atom.setAtomParameters(ParamFiller());
    cycle_.display.replace(index);
    screen_.lstAtomSequence.spliced(index, 1, 1);
  });
}

void AtomSequenceEditing::cmdDelete_Click() {
  guarded(errors_, "cmdDelete_Click", [this] {
    const int index = screen_.lstAtomSequence.index();
    if (index < 0) return;
    cycle_.edited();
    const std::string name = cycle_.atoms.Item(index + 1).AtomName();
    cycle_.atoms.Remove(index + 1);
    cycle_.display.rebuildWithout(index, name);
    screen_.lstAtomSequence.showLines(cycle_.display);
    const int count = screen_.lstAtomSequence.itemCount();
    if (index != count) {
      if (count > 0) screen_.lstAtomSequence.setIndex(index);
    } else {
      screen_.lstAtomSequence.setIndex(index - 1);
    }
  });
}

// Shows the list anew after an atom line was put in at `inserted`.
void AtomSequenceEditing::lstRefresh(int inserted) {
  guarded(errors_, "lstRefresh", [&] {
    cycle_.display.rebuildWith(inserted);
    screen_.lstAtomSequence.showLines(cycle_.display);
  });
}

std::string AtomSequenceEditing::ParamFiller() {
  return guarded(errors_, "ParamFiller", [this] {
    std::string parameters;
    for (int row = 1; row < screen_.GrdAtom.RowCount(); ++row) {
      parameters += segment(screen_.GrdAtom.cellText(0, row), screen_.GrdAtom.cellText(1, row));
      parameters += '\r';
    }
    if (!parameters.empty()) parameters.pop_back();
    return parameters;
  });
}

}  // namespace mavCycEd
