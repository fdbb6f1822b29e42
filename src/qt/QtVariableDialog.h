#pragma once

#include <QWidget>
#include <memory>

#include "kit/CommandGate.h"
#include "panels/VariableDialogScreen.h"
#include "qt/HelpDesk.h"
#include "qt/QtButton.h"
#include "qt/QtComboBox.h"
#include "qt/QtFrame.h"
#include "qt/QtLabel.h"
#include "qt/QtLineBox.h"
#include "qt/QtModalDialog.h"
#include "qt/QtOptionButton.h"
#include "qt/QtPopupMenu.h"
#include "qt/QtSelectionList.h"
#include "qt/QtValueList.h"

namespace mavCycEd::qt {

/// The window of the variable dialog. Enter presses OK, once the value that is being typed has been entered; Esc
/// closes, F1 shows the help over it.
class QtVariableDialog : public VariableDialogWindow {
 public:
  /// The help outlives the dialog.
  QtVariableDialog(QWidget* owner, HelpDesk& help);
  ~QtVariableDialog() override;
  QtVariableDialog(const QtVariableDialog&) = delete;
  QtVariableDialog& operator=(const QtVariableDialog&) = delete;

  VariableDialogScreen controls() override;
  QtModalDialog& dialog() { return frmparams_; }

 private:
  QWidget* window() const { return frmparams_.widget(); }
  void layOut();
  void setTabOrder();
  void nameForPeople();

  kit::CommandGate gate_;
  HelpDesk& help_;
  QtModalDialog frmparams_;
  HelpKey helpKey_{*window(), [this] { help_.showOver(window(), HelpPage::Variables); }};
  QtFrame fraValue_{"fraValue", window()};
  QtLineBox txtParamName_{"txtParamName", fraValue_.widget()};
  QtFrame fraParamType_{"fraParamType", window()};
  QtOptionButton optNrValue_{gate_, "optNrValue", fraParamType_.widget()};
  QtOptionButton optObjValue_{gate_, "optObjValue", fraParamType_.widget()};
  QtFrame fraValues_{"fraValues", window()};
  QtValueList grdParamStnd_{"grdParamStnd", fraValues_.widget()};
  QtLabel lblUnit_{"lblUnit", fraValues_.widget()};
  QtComboBox cboUnit_{gate_, QtComboBox::Mode::TypedToo, "cboUnit", fraValues_.widget()};
  QtFrame fraObjects_{"fraObjects", window()};
  QtSelectionList lstObject_{"lstObject", fraObjects_.widget()};
  QtButton OKButton_{gate_, "OKButton", window()};
  QtButton cmdCancel_{gate_, "cmdCancel", window()};
  QtPopupMenu mnuSyrConstant_{gate_, "mnuSyrConstants", window()};
};

/// Makes variable dialogs over the window of a control.
class QtVariableDialogs : public VariableDialogFactory {
 public:
  QtVariableDialogs(QWidget& control, HelpDesk& help) : control_(control), help_(help) {}

  std::unique_ptr<VariableDialogWindow> createVariableDialog() override;

  /// The control goes while a dialog's procedure is still running: the dialog's window leaves it, and goes when the
  /// procedure has ended.
  void outliveControl();

 private:
  QWidget& control_;
  HelpDesk& help_;
  QPointer<ModalWindow> window_;  // of the dialog that was made last
};

}  // namespace mavCycEd::qt
