#include "cycle/MacroText.h"

#include <vector>

#include "cycle/CycleText.h"
#include "paramgrid/ObjectTests.h"
#include "platform/RunTimeError.h"
#include "text/LineEnds.h"
#include "text/Strings.h"
#include "text/Utf8.h"

namespace mavCycEd {

using text::crLf;

namespace {

constexpr std::string_view header = "[PMA]";

// An atom line as a call: the values only where there is more than one parameter line.
std::string atomCall(const cAtom& atom) {
  const std::string parameters = textOf(atom.AtomParameters());
  const auto lines = text::split(parameters, '\r');
  std::vector<std::string> values;
  if (lines.size() >= 2) {
    for (const std::string_view line : lines) {
      const auto fields = text::split(line, ';');
      if (fields.size() < 2) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
      values.emplace_back(fields[1]);
    }
  }
  return atom.AtomName() + "(" + text::join(values, ",") + ")";
}

}  // namespace

bool MacroText::IsAnMacro(std::string_view text) {
  return guarded(errors_, "IsAnMacro", [&] {
    const auto lines = text::split(text, crLf);
    return lines.size() >= 2 && lines.front() == header;
  });
}

void MacroText::FillMacro(std::string_view text) {
  guarded(errors_, "FillMacro", [&] {
    screen_.txtCycleDescription.setText("");
    screen_.lstVariables.clear();
    screen_.lstAtomSequence.clear();
    std::string description;
    for (const std::string_view line : text::split(text, crLf)) {
      if (line == header) continue;
      if (line.starts_with(descriptionMarker)) {
        description.append(text::replaceAll(line, descriptionMarker, "")).append(crLf);
      } else if (IsAnObject(line)) {
        fillAtomLine(line);
      } else {
        screen_.lstVariables.addItem(line);
      }
    }
    screen_.txtCycleDescription.setText(description);
    cycle_.edited();
  });
}

void MacroText::fillAtomLine(std::string_view line) {
  const std::size_t open = line.find('(');
  cboAtom_.setText(line.substr(0, open));
  const std::string_view behind = line.substr(open + 1);
  if (text::hasMoreCharactersThan(behind, 1)) {
    int row = 0;
    for (const std::string_view value : text::split(text::withoutLastCharacter(behind), ',')) {
      grdAtom_.setValue(1, ++row, value);
    }
  }
  insertAtomLine_();
}

std::string MacroText::MacroString() {
  return guarded(errors_, "MacroString", [this] {
    macroText_.clear();
    RetrieveMacroString();
    return macroText_;
  });
}

void MacroText::RetrieveMacroString() {
  guarded(errors_, "RetrieveMacroString", [this] {
    std::string macro(descriptionMarker);
    macro.append(screen_.txtCycleDescription.text()).append(crLf);
    for (int i = 0; i < screen_.lstVariables.itemCount(); ++i) {
      macro.append(screen_.lstVariables.itemText(i)).append(crLf);
    }
    for (const cAtom& atom : cycle_.atoms) macro.append(atomCall(atom)).append(crLf);
    macroText_ = std::move(macro);
  });
}

}  // namespace mavCycEd
