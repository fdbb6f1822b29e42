#pragma once

#include <memory>

#include "platform/Button.h"
#include "platform/ComboBox.h"
#include "platform/Frame.h"
#include "platform/Label.h"
#include "platform/ModalDialog.h"
#include "platform/OptionButton.h"
#include "platform/PopupMenu.h"
#include "platform/SelectionList.h"
#include "platform/TextBox.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// The window of the variable dialog frmparams and its controls, made by an edition for one use of the dialog.
struct VariableDialogScreen {
  platform::ModalDialog& frmparams;
  platform::Frame& fraValue;        ///< around txtParamName
  platform::TextBox& txtParamName;  ///< one line
  platform::Frame& fraParamType;    ///< around the two options, which are one group
  platform::OptionButton& optNrValue;
  platform::OptionButton& optObjValue;
  platform::Frame& fraValues;  ///< around grdParamStnd and cboUnit
  platform::ValueListActiveX& grdParamStnd;
  platform::Label& lblUnit;     ///< in front of cboUnit
  platform::ComboBox& cboUnit;  ///< a user may also type a text that is no item
  platform::Frame& fraObjects;  ///< around lstObject
  platform::SelectionList& lstObject;
  platform::Button& OKButton;  ///< also pressed by Enter
  platform::Button& cmdCancel;
  platform::PopupMenu& mnuSyrConstant;  ///< the items of the pop-up menu mnuSyrConstants
};

/// Owns the dialog's window; it goes with this.
class VariableDialogWindow {
 public:
  virtual ~VariableDialogWindow() = default;

  virtual VariableDialogScreen controls() = 0;
};

/// Makes the dialog's window over the control.
class VariableDialogFactory {
 public:
  virtual ~VariableDialogFactory() = default;

  /// A new window, not yet shown.
  virtual std::unique_ptr<VariableDialogWindow> createVariableDialog() = 0;
};

}  // namespace mavCycEd
