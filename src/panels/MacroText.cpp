#include "panels/MacroText.h"

#include <utility>

#include "cycle/MacroLines.h"
#include "text/LineEnds.h"

namespace mavCycEd {

bool MacroText::IsAnMacro(std::string_view text) {
  return guarded(errors_, "IsAnMacro", [&] { return isMacroText(text); });
}

void MacroText::FillMacro(std::string_view text) {
  guarded(errors_, "FillMacro", [&] {
    const CycleDocument::Loading loading(cycle_.document);
    cycle_.document.load({});
    std::string description;
    fillLines(text, description);
    cycle_.document.perform(edits::changeDescription(cycle_.cycle().description, text::toCrLf(description)));
    cycle_.changed = true;
  });
}

// Each line does what the operator's command would do; that shows what it does.
void MacroText::fillLines(std::string_view text, std::string& description) {
  const CycleView::ShownByProcedure shown(view_);
  for (const MacroLine& line : macroLines(text)) {
    switch (line.kind) {
      case MacroLine::Kind::Header: break;
      case MacroLine::Kind::Description: description.append(line.description()).append(text::crLf); break;
      case MacroLine::Kind::AtomCall: fillAtomLine(line); break;
      case MacroLine::Kind::Variable:
        cycle_.document.perform(
            edits::insertVariable(cycle_.cycle().variables.size(), VariableDefinition(std::string(line.text))));
        break;
    }
  }
}

void MacroText::fillAtomLine(const MacroLine& line) {
  cboAtom_.setText(line.atomName());
  int row = 0;
  for (const std::string_view value : line.values()) grdAtom_.setValue(1, ++row, value);
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
  guarded(errors_, "RetrieveMacroString", [this] { macroText_ = macroTextOf(cycle_.cycle()); });
}

}  // namespace mavCycEd
