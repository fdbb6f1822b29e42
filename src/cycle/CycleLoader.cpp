#include "cycle/CycleLoader.h"

#include <string>
#include <utility>

#include "cycle/CycleText.h"
#include "platform/RunTimeError.h"
#include "text/LineEnds.h"
#include "text/Strings.h"

namespace mavCycEd {

using platform::XmlNode;

namespace {

std::string shownDescription(std::string_view text) {
  const std::string unmarked = text::replaceAll(text, descriptionMarker, "");
  return ReverseDescription(text::replaceAll(unmarked, "\n", text::crLf));
}

// The value in a line of a parameter text: what stands behind its first ";", the whole line when it has none.
std::string_view valueOf(std::string_view parameterLine) {
  const std::size_t separator = parameterLine.find(';');
  return separator == std::string_view::npos ? parameterLine : parameterLine.substr(separator + 1);
}

}  // namespace

void CycleLoader::FillCycle() {
  guarded(errors_, "FillCycle", [this] {
    screen_.txtCycleDescription.setText("");
    screen_.lstVariables.clear();
    screen_.lstAtomSequence.clear();
    LoadedCycle cycle = std::exchange(cycle_.working, {});
    if (!cycle.variables) return;
    screen_.txtCycleDescription.setText(shownDescription(cycle.description.value_or("")));
    screen_.lstVariables.assign(*std::move(cycle.variables));

    if (!cycle.hasAtoms) throw RunTimeError(ErrorNumber::ObjectNotSet);
    for (LoadedAtomLine& line : cycle.atomLines) {
      cycle_.atoms.Add(std::move(line.name), {}, {}, std::move(line.parameters));
    }
    if (cycle.lacksElement) throw RunTimeError(ErrorNumber::ObjectNotSet);
    cycle_.display.rebuild();
    screen_.lstAtomSequence.showLines(cycle_.display);
    if (screen_.lstAtomSequence.itemCount() > 0) screen_.lstAtomSequence.setIndex(0);
  });
}

void CycleLoader::lstAtomSequence_Click() {
  guarded(errors_, "lstAtomSequence_Click", [this] {
    const int index = screen_.lstAtomSequence.index();
    if (index < 0) return;
    const cAtom& atom = cycle_.atoms.Item(index + 1);
    const std::string parameters = textOf(atom.AtomParameters());
    pickAtom(atom.AtomName());
    int row = 0;
    for (const std::string_view line : text::split(parameters, '\r')) grdAtom_.setValue(1, ++row, valueOf(line));
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
