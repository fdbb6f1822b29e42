#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "memory/MemoryButton.h"
#include "memory/MemoryComboBox.h"
#include "memory/MemoryFrame.h"
#include "memory/MemoryModalDialog.h"
#include "memory/MemoryOptionButton.h"
#include "memory/MemoryPopupMenu.h"
#include "memory/MemorySelectionList.h"
#include "memory/MemoryTextBox.h"
#include "memory/MemoryValueList.h"
#include "panels/VariableDialogScreen.h"

namespace mavCycEd::memory {

/// A label without a screen.
class MemoryLabel : public platform::Label {
 public:
  void setCaption(std::string_view caption) override { caption_ = caption; }
  const std::string& caption() const { return caption_; }

 private:
  std::string caption_;
};

/// The controls of the variable dialog in memory.
struct MemoryVariableDialogControls {
  MemoryModalDialog frmparams;
  MemoryFrame fraValue{nullptr};
  MemoryTextBox txtParamName{&fraValue, MemoryTextBox::Lines::One};
  MemoryFrame fraParamType{nullptr};
  MemoryOptionButton optNrValue{&fraParamType};
  MemoryOptionButton optObjValue{&fraParamType};
  MemoryFrame fraValues{nullptr};
  MemoryValueList grdParamStnd{&fraValues};
  MemoryLabel lblUnit;
  MemoryComboBox cboUnit{&fraValues};
  MemoryFrame fraObjects{nullptr};
  MemorySelectionList lstObject{&fraObjects};
  MemoryButton OKButton{nullptr};
  MemoryButton cmdCancel{nullptr};
  MemoryPopupMenu mnuSyrConstant;
};

/// Makes variable dialogs in memory. A dialog that is shown runs a user, given beforehand, who works in it; a dialog
/// that the user leaves open is closed as by its frame.
class MemoryVariableDialogs : public VariableDialogFactory {
 public:
  using User = std::function<void(MemoryVariableDialogControls& controls)>;

  /// What the user does in each dialog that is shown.
  void setUser(User user) { user_ = std::move(user); }
  /// The controls of the dialog that is shown at this moment; nullptr when none is.
  MemoryVariableDialogControls* open() const { return open_; }

  std::unique_ptr<VariableDialogWindow> createVariableDialog() override;

 private:
  User user_;
  MemoryVariableDialogControls* open_ = nullptr;
};

}  // namespace mavCycEd::memory
