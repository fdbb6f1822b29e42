#include "editing/CycleVariables.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

#include "editing/VariableDefinition.h"
#include "editing/frmparams.h"
#include "text/CaseFold.h"
#include "text/LineEnds.h"
#include "text/MessageTitles.h"
#include "text/Strings.h"
#include "text/Utf8.h"

namespace mavCycEd {

using text::crLf;

namespace {

// Whether a parameter's value refers to a variable: it is its name, or one of its terms is. Both texts case-folded.
bool refersTo(std::string_view value, std::string_view name) {
  if (name.empty() || value.find(name) == std::string_view::npos) return false;
  if (value == name) return true;
  const std::string sum = text::replaceAll(value, "-", "+");
  return std::ranges::any_of(text::split(sum, '+'),
                             [name](std::string_view term) { return text::trimSpaces(term) == name; });
}

// A parameter's name as the list of uses shows it: without its unit. A name without a unit loses its last character.
std::string_view shownParameterName(std::string_view segment) {
  const std::size_t unit = segment.find('(');
  if (unit != std::string_view::npos) return text::trimSpaces(segment.substr(0, unit));
  return text::withoutLastCharacter(segment.substr(0, segment.find(';')));
}

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
    variable = variableName(variable);
    const std::string name = text::foldCase(variable);
    const int count = cycle_.atoms.Count();
    std::string uses;
    int line = 0;
    for (const cAtom& atom : cycle_.atoms) {
      ++line;
      const std::string parameters = textOf(atom.AtomParameters());
      for (const std::string_view piece : text::split(parameters, '\r')) {
        const std::string_view segment = text::trimSpaces(piece);
        const std::size_t separator = segment.find(';');
        if (separator == std::string_view::npos) continue;
        if (!refersTo(text::foldCase(text::trimSpaces(segment.substr(separator + 1))), name)) continue;
        uses.append("Line ").append(std::to_string(line));
        uses.append(" - atom \"").append(atom.AtomName());
        uses.append("\", parameter \"").append(shownParameterName(segment)).append("\"");
        if (line != count) uses.append(crLf);
      }
    }
    return uses;
  });
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
    const int index = surroundings_.lstVariables.index();
    if (index < 0) return;
    const std::string entry = surroundings_.lstVariables.itemText(index);
    if (tellUses(entry)) return;
    cycle_.edited();
    extraValues_.Delete_Extra_Udons(entry);
    surroundings_.lstVariables.removeItem(index);
    surroundings_.lstVariables.setIndex(index - 1);
  });
}

void CycleVariables::cmdIns_Click() {
  guarded(errors_, "cmdIns_Click", [this] {
    if (open_ != nullptr || surroundings_.cboAtom.text().empty()) return;
    cycle_.edited();
    const int index = surroundings_.lstVariables.index();
    exchange_ = DialogExchange();
    runDialog(false);
    const std::string result = exchange_.resultText;
    extraValues_.Add_Extra_Udons(result);
    if (result.empty()) return;
    surroundings_.lstVariables.insertItem(index < 0 ? surroundings_.lstVariables.itemCount() : index, result);
    // The list is left scrolled to its end, with nothing selected.
    surroundings_.lstVariables.setIndex(surroundings_.lstVariables.itemCount() - 1);
    surroundings_.lstVariables.setIndex(-1);
  });
}

void CycleVariables::lstVariables_DblClick() {
  guarded(errors_, "lstVariables_DblClick", [this] {
    const int index = surroundings_.lstVariables.index();
    if (open_ != nullptr || index < 0) return;
    const std::string entry = surroundings_.lstVariables.itemText(index);
    const bool inUse = tellUses(entry);
    if (open_ != nullptr) return;  // while the message was shown
    cycle_.edited();
    exchange_ = {true, entry, {}};
    runDialog(inUse);
    // Also after a cancelled dialog: the edited variable is offered again when the grid is next refilled.
    if (!exchange_.editedText.empty()) {
      extraValues_.Delete_Extra_Udons(exchange_.editedText);
      exchange_.editedText.clear();
    }
    if (!exchange_.resultText.empty()) {
      surroundings_.lstVariables.setItemText(index, exchange_.resultText);
      cboAtom_Click_();
    }
    exchange_.editMode = false;
    surroundings_.lstVariables.setIndex(-1);
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
