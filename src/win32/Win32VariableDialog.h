#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "kit/CommandGate.h"
#include "panels/VariableDialogScreen.h"
#include "win32/Win32Button.h"
#include "win32/Win32ComboBox.h"
#include "win32/Win32Frame.h"
#include "win32/Win32Label.h"
#include "win32/Win32ModalDialog.h"
#include "win32/Win32OptionButton.h"
#include "win32/Win32PopupMenu.h"
#include "win32/Win32SelectionList.h"
#include "win32/Win32TextBox.h"
#include "win32/Win32ValueList.h"

namespace mavCycEd::win32 {

/// The controls of the variable dialog, in the order of the Tab key.
struct VariableDialogControls {
  VariableDialogControls(HWND owner, const kit::CommandGate& gate);

  Win32ModalDialog frmparams;
  Win32Frame fraValue;
  Win32TextBox txtParamName;
  Win32Frame fraParamType;
  Win32OptionButton optNrValue;
  Win32OptionButton optObjValue;
  Win32Frame fraValues;
  Win32ValueList grdParamStnd;
  Win32Label lblUnit;
  Win32ComboBox cboUnit;
  Win32Frame fraObjects;
  Win32SelectionList lstObject;
  Win32Button OKButton;
  Win32Button cmdCancel;
  Win32PopupMenu mnuSyrConstant;
};

/// The window of the variable dialog.
class Win32VariableDialog : public VariableDialogWindow {
 public:
  /// `place`: where the maker of dialogs finds this one for as long as it exists.
  Win32VariableDialog(HWND owner, std::shared_ptr<Win32VariableDialog*> place);
  ~Win32VariableDialog() override;
  Win32VariableDialog(const Win32VariableDialog&) = delete;
  Win32VariableDialog& operator=(const Win32VariableDialog&) = delete;

  VariableDialogControls& windows() { return controls_; }

  VariableDialogScreen controls() override;
  Win32ModalDialog& dialog() { return controls_.frmparams; }

 private:
  HWND window() const { return controls_.frmparams.window().handle(); }
  void fit();
  void resize();
  void layOut();
  void nameForPeople();

  std::shared_ptr<Win32VariableDialog*> place_;
  kit::CommandGate gate_;
  VariableDialogControls controls_;
  FontHandle font_;
};

/// Makes variable dialogs over the window of a control.
class Win32VariableDialogs : public VariableDialogFactory {
 public:
  explicit Win32VariableDialogs(std::function<HWND()> control) : control_(std::move(control)) {}

  /// What each dialog calls before it keeps its owner waiting (true) and afterwards (false).
  void setModality(std::function<void(bool)> modality) { modality_ = std::move(modality); }
  /// What F1 does in each dialog.
  void setHelp(std::function<void(HWND)> help) { help_ = std::move(help); }
  /// The dialog that was made last and is shown; nullptr when none is.
  Win32VariableDialog* open() const;

  std::unique_ptr<VariableDialogWindow> createVariableDialog() override;

 private:
  std::function<HWND()> control_;
  std::function<void(bool)> modality_;
  std::function<void(HWND)> help_;
  std::shared_ptr<Win32VariableDialog*> last_ = std::make_shared<Win32VariableDialog*>(nullptr);
};

}  // namespace mavCycEd::win32
