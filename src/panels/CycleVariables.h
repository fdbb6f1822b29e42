#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "catalogue/AtomListProvider.h"
#include "catalogue/modCycleHelper.h"
#include "panels/CycleState.h"
#include "panels/CycleView.h"
#include "panels/DialogExchange.h"
#include "panels/ExtraValues.h"
#include "panels/VariableDialogScreen.h"
#include "platform/ComboBox.h"
#include "platform/ErrorSink.h"
#include "platform/MessageBox.h"

namespace mavCycEd {

/// The commands on the cycle variables, which lstVariables shows: one entry per variable, its definition text. A
/// variable that a parameter value refers to cannot be deleted, nor renamed.
class CycleVariables {
 public:
  /// What the commands work with beside the cycle.
  struct Surroundings {
    CycleScreen screen;
    platform::ComboBox& cboAtom;
    VariableDialogFactory& dialogs;
    modCycleHelper& catalogue;
    AtomListProvider& provider;
    platform::MessageBox& messages;
  };

  /// `cboAtom_Click` refills the parameter grid.
  CycleVariables(CycleState& cycle, const Surroundings& surroundings, CycleView& view, ExtraValues& extraValues,
                 std::function<void()> cboAtom_Click, ErrorSink& errors)
      : cycle_(cycle),
        surroundings_(surroundings),
        view_(view),
        extraValues_(extraValues),
        cboAtom_Click_(std::move(cboAtom_Click)),
        errors_(errors) {}

  /// Deletes the selected variable, unless it is in use.
  void cmdDel_Click();
  /// Adds a variable through the dialog, in front of the selected one or at the end. Nothing happens while no atom is
  /// chosen.
  void cmdIns_Click();
  /// Edits the selected variable through the dialog; the name of one in use is locked.
  void lstVariables_DblClick();
  /// An open dialog is closed, and no other is opened.
  void end();

 private:
  std::string variableInUse(std::string& variable);
  bool tellUses(std::string variable);
  void perform(std::string_view stepName, CycleEdit edit, CycleSelection before, int variableAfter);
  platform::ItemListBox& list() { return surroundings_.screen.lstVariables; }
  void runDialog(bool nameLocked);

  CycleState& cycle_;
  Surroundings surroundings_;
  CycleView& view_;
  ExtraValues& extraValues_;
  std::function<void()> cboAtom_Click_;
  ErrorSink& errors_;
  DialogExchange exchange_;
  const VariableDialogScreen* open_ = nullptr;  // the dialog that is shown
  bool ended_ = false;
};

}  // namespace mavCycEd
