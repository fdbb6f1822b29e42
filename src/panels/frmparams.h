#pragma once

#include <string>
#include <string_view>

#include "catalogue/AtomListProvider.h"
#include "catalogue/modCycleHelper.h"
#include "panels/DialogExchange.h"
#include "panels/SyringeConstants.h"
#include "panels/VariableDialogScreen.h"
#include "platform/ErrorSink.h"
#include "platform/MessageBox.h"

namespace mavCycEd {

/// The modal dialog in which the user defines or changes one cycle variable: a number with default, limits and unit, or
/// a set of object types. It reads from the exchange what is to be edited and leaves the definition text there; a
/// refused OK keeps the dialog open with everything entered.
class frmparams {
 public:
  frmparams(const VariableDialogScreen& screen, DialogExchange& exchange, modCycleHelper& catalogue,
            AtomListProvider& provider, platform::MessageBox& messages, ErrorSink& errors);
  ~frmparams();
  frmparams(const frmparams&) = delete;
  frmparams& operator=(const frmparams&) = delete;

  /// Prepares the dialog for a new variable, or for the one being edited.
  void Form_Load();
  /// Disables the name box and the choice of the type: the variable is in use. The box shows the name that is in use.
  void lockName();
  /// Shows the dialog and returns when it has closed.
  void show() { screen_.frmparams.showModal(); }

 private:
  void connect();
  void disconnect();
  void setCaptions();
  void FillStandardUnits();
  static bool itemInComboExists(const platform::ComboBox& combo, std::string_view text);
  void fillSettings(std::string_view defaultValue, std::string_view lower, std::string_view upper);
  std::string setting(int row) const { return screen_.grdParamStnd.cellText(1, row); }

  void OKButton_Click();
  void cmdCancel_Click();
  void txtParamName_Change();
  void optNrValue_Click();
  void optObjValue_Click();
  void showHalf(bool numeric);

  bool nameStands();
  bool unitStands();
  bool ValidatedParamsValues();
  bool isDefaultWithinLimits();
  bool areSettingsComplete();
  void showWarningIllegalCharater1();
  void showWarningIllegalCharater2();
  void tell(std::string_view message);
  std::string definition() const;

  const VariableDialogScreen& screen_;
  DialogExchange& exchange_;
  modCycleHelper& catalogue_;
  AtomListProvider& provider_;
  platform::MessageBox& messages_;
  ErrorSink& errors_;
  SyringeConstants constants_;
};

}  // namespace mavCycEd
