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

// Which dialog is open, for as long as this object lives.
class Opened {
 public:
  Opened(MemoryVariableDialogControls*& open, MemoryVariableDialogControls& controls)
      : open_(open), before_(std::exchange(open, &controls)) {}
  ~Opened() { open_ = before_; }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

 private:
  MemoryVariableDialogControls*& open_;
  MemoryVariableDialogControls* before_;
};

}  // namespace

std::unique_ptr<VariableDialogScreen> MemoryVariableDialogs::createVariableDialog() {
  auto screen = std::make_unique<Screen>();
  MemoryVariableDialogControls& controls = screen->controls();
  controls.frmparams.setUser([this, &controls] {
    const Opened opened(open_, controls);
    if (const User user = user_) user(controls);
  });
  return screen;
}

}  // namespace mavCycEd::memory
