#include "panels/CycleLoader.h"

#include <cstddef>
#include <string>
#include <utility>

#include "platform/RunTimeError.h"

namespace mavCycEd {

void CycleLoader::FillCycle() {
  guarded(errors_, "FillCycle", [this] {
    LoadedCycle loaded = std::exchange(cycle_.working, {});
    if (!loaded.hasVariables) loaded.cycle = {};
    const auto& before = cycle_.cycle().lines;
    loaded.cycle.lines.insert(loaded.cycle.lines.begin(), before.begin(), before.end());
    cycle_.document.load(std::move(loaded.cycle));
    if (!loaded.hasVariables) return;

    if (!loaded.hasAtoms || loaded.lacksElement) throw RunTimeError(ErrorNumber::ObjectNotSet);
    cycle_.display.rebuild();
    screen_.lstAtomSequence.showLines(cycle_.display);
    if (screen_.lstAtomSequence.itemCount() > 0) screen_.lstAtomSequence.setIndex(0);
  });
}

void CycleLoader::lstAtomSequence_Click() {
  guarded(errors_, "lstAtomSequence_Click", [this] {
    const int index = screen_.lstAtomSequence.index();
    if (index < 0) return;
    const auto& lines = cycle_.cycle().lines;
    if (static_cast<std::size_t>(index) >= lines.size()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    const AtomLine line = lines[static_cast<std::size_t>(index)];  // who is told of the pick may change the cycle
    pickAtom(line.name);
    int row = 0;
    for (const ParameterSegment& segment : line.parameters.segments()) grdAtom_.setValue(1, ++row, segment.value());
  });
}

void CycleLoader::pickAtom(std::string_view name) {
  for (int i = 0; i < cboAtom_.itemCount(); ++i) {
    if (cboAtom_.itemText(i) != name) continue;
    cboAtom_.setIndex(i);
    return;
  }
}

void CycleLoader::lstAtomSequence_DblClick() {
  guarded(errors_, "lstAtomSequence_DblClick", [this] { screen_.lstAtomSequence.setIndex(-1); });
}

}  // namespace mavCycEd
