#include "memory/MemoryVariableDialog.h"

#include <utility>

namespace mavCycEd::memory {
namespace {

class Window : public VariableDialogWindow {
 public:
  Window() { MemoryOptionButton::group({&windows_.optNrValue, &windows_.optObjValue}); }

  MemoryVariableDialogControls& windows() { return windows_; }

  VariableDialogScreen controls() override {
    return {.frmparams = windows_.frmparams,
            .fraValue = windows_.fraValue,
            .txtParamName = windows_.txtParamName,
            .fraParamType = windows_.fraParamType,
            .optNrValue = windows_.optNrValue,
            .optObjValue = windows_.optObjValue,
            .fraValues = windows_.fraValues,
            .grdParamStnd = windows_.grdParamStnd,
            .lblUnit = windows_.lblUnit,
            .cboUnit = windows_.cboUnit,
            .fraObjects = windows_.fraObjects,
            .lstObject = windows_.lstObject,
            .OKButton = windows_.OKButton,
            .cmdCancel = windows_.cmdCancel,
            .mnuSyrConstant = windows_.mnuSyrConstant};
  }

 private:
  MemoryVariableDialogControls windows_;
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

std::unique_ptr<VariableDialogWindow> MemoryVariableDialogs::createVariableDialog() {
  auto window = std::make_unique<Window>();
  MemoryVariableDialogControls& controls = window->windows();
  controls.frmparams.setUser([this, &controls] {
    const Opened opened(open_, controls);
    if (const User user = user_) user(controls);
  });
  return window;
}

}  // namespace mavCycEd::memory
