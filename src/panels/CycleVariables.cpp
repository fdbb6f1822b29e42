#include "panels/CycleVariables.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

#include "mavCycEd/VariableUses.h"
#include "panels/StepNames.h"
#include "panels/frmparams.h"
#include "text/LineEnds.h"
#include "text/MessageTitles.h"

namespace mavCycEd {

using text::crLf;

namespace {

/// Notes which dialog is shown while it is.
class Shown {
 public:
  Shown(const VariableDialogScreen*& place, const VariableDialogScreen& screen) : place_(place) { place = &screen; }
  ~Shown() { place_ = nullptr; }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;

 private:
  const VariableDialogScreen*& place_;
};

}  // namespace

std::string CycleVariables::variableInUse(std::string& variable) {
  return guarded(errors_, "variableInUse", [&] {
    variable = VariableDefinition(variable).name();
    const auto& lines = cycle_.cycle().lines;
    std::string uses;
    for (const VariableUse& use : usesOf(variable, cycle_.cycle())) {
      uses.append("Line ").append(std::to_string(use.line + 1));
      uses.append(" - atom \"").append(lines[use.line].name);
      uses.append("\", parameter \"").append(use.parameterName).append("\"");
      if (use.line + 1 != lines.size()) uses.append(crLf);
    }
    return uses;
  });
}

// One step of the operator; what the rows offer is the command's.
void CycleVariables::perform(std::string_view stepName, CycleEdit edit, CycleSelection before, int variableAfter) {
  const CycleView::ShownByProcedure shown(view_);
  CycleDocument::Transaction step(cycle_.document, stepName, before);
  cycle_.document.perform(std::move(edit));
  step.setAfter({surroundings_.screen.lstAtomSequence.index(), variableAfter});
}

// Tells where a variable is in use; false when it is not.
bool CycleVariables::tellUses(std::string variable) {
  const std::string uses = variableInUse(variable);
  if (uses.empty()) return false;
  std::string message = "The variable \"" + variable + "\" is in use:";
  message.append(crLf).append(crLf).append(uses);
  surroundings_.messages.messageBox(0, message, text::controlTitle, platform::Exclamation | platform::OkOnly);
  return true;
}

void CycleVariables::cmdDel_Click() {
  guarded(errors_, "cmdDel_Click", [this] {
    const int index = list().index();
    if (index < 0) return;
    const std::string entry = cycle_.cycle().variables.at(static_cast<std::size_t>(index)).text();
    if (tellUses(entry)) return;
    cycle_.changed = true;
    extraValues_.Delete_Extra_Udons(VariableDefinition(entry));
    perform(stepNames::deleteVariable, edits::removeVariable(static_cast<std::size_t>(index)),
            surroundings_.screen.selection(), index - 1);
    list().setIndex(index - 1);
  });
}

void CycleVariables::cmdIns_Click() {
  guarded(errors_, "cmdIns_Click", [this] {
    if (open_ != nullptr || surroundings_.cboAtom.text().empty()) return;
    cycle_.changed = true;
    const CycleSelection before = surroundings_.screen.selection();
    exchange_ = DialogExchange();
    runDialog(false);
    const VariableDefinition result(exchange_.resultText);
    extraValues_.Add_Extra_Udons(result);
    if (result.text().empty()) return;
    const std::size_t count = cycle_.cycle().variables.size();
    const std::size_t at = before.variable < 0 ? count : std::min(static_cast<std::size_t>(before.variable), count);
    perform(stepNames::insertVariable, edits::insertVariable(at, result), before, -1);
    // The list is left scrolled to its end, with nothing selected.
    list().setIndex(list().itemCount() - 1);
    list().setIndex(-1);
  });
}

void CycleVariables::lstVariables_DblClick() {
  guarded(errors_, "lstVariables_DblClick", [this] {
    const int index = list().index();
    if (open_ != nullptr || index < 0) return;
    const std::string entry = cycle_.cycle().variables.at(static_cast<std::size_t>(index)).text();
    const bool inUse = tellUses(entry);
    if (open_ != nullptr) return;  // while the message was shown
    cycle_.changed = true;
    const CycleSelection before = surroundings_.screen.selection();
    exchange_ = {true, entry, {}};
    runDialog(inUse);
    // Also after a cancelled dialog: the edited variable is offered again when the grid is next refilled.
    if (!exchange_.editedText.empty()) {
      extraValues_.Delete_Extra_Udons(VariableDefinition(exchange_.editedText));
      exchange_.editedText.clear();
    }
    if (!exchange_.resultText.empty()) {
      perform(stepNames::changeVariable,
              edits::replaceVariable(static_cast<std::size_t>(index), VariableDefinition(exchange_.resultText)), before,
              -1);
      cboAtom_Click_();
    }
    exchange_.editMode = false;
    list().setIndex(-1);
  });
}

void CycleVariables::end() {
  ended_ = true;
  if (open_ != nullptr) open_->frmparams.close();
}

void CycleVariables::runDialog(bool nameLocked) {
  if (ended_) return;
  const std::unique_ptr<VariableDialogWindow> window = surroundings_.dialogs.createVariableDialog();
  const VariableDialogScreen screen = window->controls();
  frmparams dialog(screen, exchange_, surroundings_.catalogue, surroundings_.provider, surroundings_.messages, errors_);
  dialog.Form_Load();
  if (nameLocked) dialog.lockName();
  const Shown shown(open_, screen);
  dialog.show();
}

}  // namespace mavCycEd
