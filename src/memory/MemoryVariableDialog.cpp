#include "memory/MemoryVariableDialog.h"

#include <utility>

namespace mavCycEd::memory {
namespace {

class Screen : public VariableDialogScreen {
 public:
  Screen() { MemoryOptionButton::group({&controls_.optNrValue, &controls_.optObjValue}); }

  MemoryVariableDialogControls& controls() { return controls_; }

  MemoryModalDialog& frmparams() override { return controls_.frmparams; }
  platform::Frame& fraValue() override { return controls_.fraValue; }
  platform::TextBox& txtParamName() override { return controls_.txtParamName; }
  platform::Frame& fraParamType() override { return controls_.fraParamType; }
  platform::OptionButton& optNrValue() override { return controls_.optNrValue; }
  platform::OptionButton& optObjValue() override { return controls_.optObjValue; }
  platform::Frame& fraValues() override { return controls_.fraValues; }
  platform::ValueListActiveX& grdParamStnd() override { return controls_.grdParamStnd; }
  platform::Label& lblUnit() override { return controls_.lblUnit; }
  platform::ComboBox& cboUnit() override { return controls_.cboUnit; }
  platform::Frame& fraObjects() override { return controls_.fraObjects; }
  platform::SelectionList& lstObject() override { return controls_.lstObject; }
  platform::Button& OKButton() override { return controls_.OKButton; }
  platform::Button& cmdCancel() override { return controls_.cmdCancel; }
  platform::PopupMenu& mnuSyrConstant() override { return controls_.mnuSyrConstant; }

 private:
  MemoryVariableDialogControls controls_;
};

}  // namespace

std::unique_ptr<VariableDialogScreen> MemoryVariableDialogs::createVariableDialog() {
  auto screen = std::make_unique<Screen>();
  MemoryVariableDialogControls& controls = screen->controls();
  controls.frmparams.setUser([this, &controls] {
    MemoryVariableDialogControls* const before = std::exchange(open_, &controls);
    if (const User user = user_) user(controls);
    open_ = before;
  });
  return screen;
}

}  // namespace mavCycEd::memory
