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
class VariableDialogScreen {
 public:
  virtual ~VariableDialogScreen() = default;

  virtual platform::ModalDialog& frmparams() = 0;
  virtual platform::Frame& fraValue() = 0;        ///< around txtParamName
  virtual platform::TextBox& txtParamName() = 0;  ///< one line
  virtual platform::Frame& fraParamType() = 0;    ///< around the two options, which are one group
  virtual platform::OptionButton& optNrValue() = 0;
  virtual platform::OptionButton& optObjValue() = 0;
  virtual platform::Frame& fraValues() = 0;  ///< around grdParamStnd and cboUnit
  virtual platform::ValueListActiveX& grdParamStnd() = 0;
  virtual platform::Label& lblUnit() = 0;     ///< in front of cboUnit
  virtual platform::ComboBox& cboUnit() = 0;  ///< a user may also type a text that is no item
  virtual platform::Frame& fraObjects() = 0;  ///< around lstObject
  virtual platform::SelectionList& lstObject() = 0;
  virtual platform::Button& OKButton() = 0;  ///< also pressed by Enter
  virtual platform::Button& cmdCancel() = 0;
  virtual platform::PopupMenu& mnuSyrConstant() = 0;  ///< the items of the pop-up menu mnuSyrConstants
};

/// Makes the dialog's window over the control.
class VariableDialogFactory {
 public:
  virtual ~VariableDialogFactory() = default;

  /// A new window, not yet shown.
  virtual std::unique_ptr<VariableDialogScreen> createVariableDialog() = 0;
};

}  // namespace mavCycEd
