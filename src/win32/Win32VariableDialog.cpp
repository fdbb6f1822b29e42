#include "win32/Win32VariableDialog.h"

#include <algorithm>
#include <array>

#include "win32/Dpi.h"
#include "win32/Layout.h"
#include "win32/Module.h"

namespace mavCycEd::win32 {

VariableDialogControls::VariableDialogControls(HWND owner, const kit::CommandGate& gate)
    : frmparams(owner),
      fraValue(frmparams.window().handle(), nullptr),
      txtParamName(Win32TextBox::Lines::One, frmparams.window().handle(), &fraValue),
      fraParamType(frmparams.window().handle(), nullptr),
      optNrValue(gate, Win32OptionButton::Place::FirstOfGroup, frmparams.window().handle(), &fraParamType),
      optObjValue(gate, Win32OptionButton::Place::InGroup, frmparams.window().handle(), &fraParamType),
      fraValues(frmparams.window().handle(), nullptr),
      grdParamStnd(frmparams.window().handle(), &fraValues),
      lblUnit(frmparams.window().handle(), &fraValues),
      cboUnit(gate, Win32ComboBox::Mode::TypedToo, frmparams.window().handle(), &fraValues),
      fraObjects(frmparams.window().handle(), nullptr),
      lstObject(frmparams.window().handle(), &fraObjects),
      OKButton(gate, frmparams.window().handle(), nullptr),
      cmdCancel(gate, frmparams.window().handle(), nullptr),
      mnuSyrConstant(gate, [this] { return grdParamStnd.view().handle(); }) {}

Win32VariableDialog::Win32VariableDialog(HWND owner, std::shared_ptr<Win32VariableDialog*> place)
    : place_(std::move(place)), controls_(owner, gate_) {
  *place_ = this;
  VariableDialogControls& c = controls_;
  Win32OptionButton::group({&c.optNrValue, &c.optObjValue});
  gate_.setEndEdit([this] { controls_.grdParamStnd.endEdit(); });
  c.mnuSyrConstant.setPlace([this] { return controls_.grdParamStnd.view().menuPlace(); });
  c.frmparams.window().setDefaultButton(c.OKButton.handle());
  c.grdParamStnd.list().setEnterOpens(false);  // Enter is OK
  c.frmparams.window().setLayOut([this] { layOut(); });
  c.frmparams.window().setScalingChanged([this] { fit(); });
  c.frmparams.setFirst([this] { return GetNextDlgTabItem(window(), nullptr, FALSE); });
  nameForPeople();
  fit();
  resize();
}

Win32VariableDialog::~Win32VariableDialog() {
  if (*place_ == this) *place_ = nullptr;
  controls_.frmparams.window().setLayOut({});
  controls_.frmparams.window().setScalingChanged({});
}

VariableDialogScreen Win32VariableDialog::controls() {
  VariableDialogControls& c = controls_;
  return {.frmparams = c.frmparams,
          .fraValue = c.fraValue,
          .txtParamName = c.txtParamName,
          .fraParamType = c.fraParamType,
          .optNrValue = c.optNrValue,
          .optObjValue = c.optObjValue,
          .fraValues = c.fraValues,
          .grdParamStnd = c.grdParamStnd,
          .lblUnit = c.lblUnit,
          .cboUnit = c.cboUnit,
          .fraObjects = c.fraObjects,
          .lstObject = c.lstObject,
          .OKButton = c.OKButton,
          .cmdCancel = c.cmdCancel,
          .mnuSyrConstant = c.mnuSyrConstant};
}

void Win32VariableDialog::fit() {
  if (window() == nullptr) return;
  const int dpi = dpiOf(window());
  font_ = makeFont(systemFont(dpi));
  VariableDialogControls& c = controls_;
  const std::array<NativeWindow*, 14> windows{
      &c.fraValue,    &c.txtParamName, &c.fraParamType,         &c.optNrValue,
      &c.optObjValue, &c.fraValues,    &c.grdParamStnd.label(), &c.grdParamStnd.view(),
      &c.lblUnit,     &c.cboUnit,      &c.fraObjects,           &c.lstObject,
      &c.OKButton,    &c.cmdCancel};
  for (NativeWindow* const window : windows) window->setScreenFont(font_, dpi);
  layOut();
}

// Large enough for the three settings, or a dozen object types.
void Win32VariableDialog::resize() {
  if (window() == nullptr) return;
  const TextMeasure measure(window(), font_.get());
  constexpr int characters = 62;
  constexpr int lines = 21;
  RECT size{0, 0, characters * measure.averageWidth(), lines * (measure.lineHeight() + scaled(window(), 3))};
  AdjustWindowRectEx(&size, static_cast<DWORD>(GetWindowLongPtrW(window(), GWL_STYLE)), FALSE,
                     static_cast<DWORD>(GetWindowLongPtrW(window(), GWL_EXSTYLE)));
  SetWindowPos(window(), nullptr, 0, 0, size.right - size.left, size.bottom - size.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Win32VariableDialog::layOut() {
  VariableDialogControls& c = controls_;
  const Spaces spaces(window(), font_.get());
  RECT rest{};
  GetClientRect(window(), &rest);
  InflateRect(&rest, -spaces.gap, -spaces.gap);
  const int frame = spaces.frameTop + spaces.lineHeight + spaces.gap + spaces.gap / 3;

  const RECT name = cutTop(rest, frame, spaces.gap);
  c.fraValue.place(name);
  c.txtParamName.place(spaces.inside(name));

  const RECT types = cutTop(rest, frame, spaces.gap);
  c.fraParamType.place(types);
  RECT options = spaces.inside(types);
  c.optNrValue.place(cutLeft(options, c.optNrValue.neededWidth(), 2 * spaces.gap));
  c.optObjValue.place(cutLeft(options, c.optObjValue.neededWidth(), 0));

  RECT buttons = cutBottom(rest, spaces.buttonHeight, spaces.gap);
  const int button = std::max({c.OKButton.neededWidth(), c.cmdCancel.neededWidth(), scaled(window(), 80)});
  c.cmdCancel.place(cutRight(buttons, button, spaces.gap));
  c.OKButton.place(cutRight(buttons, button, spaces.gap));

  // One of the two halves is seen.
  c.fraValues.place(rest);
  c.fraObjects.place(rest);
  RECT inside = spaces.inside(rest);
  c.lstObject.place(inside);
  RECT unit = cutBottom(inside, c.cboUnit.neededHeight(), spaces.gap);
  c.lblUnit.place(cutLeft(unit, TextMeasure(window(), font_.get()).width(L"Unit") + spaces.gap, spaces.gap));
  constexpr int droppedLines = 12;
  unit.bottom += droppedLines * spaces.lineHeight;  // a combo box is as high as its open list
  c.cboUnit.place(unit);
  c.grdParamStnd.view().place(inside);
  InvalidateRect(window(), nullptr, TRUE);
}

void Win32VariableDialog::nameForPeople() {
  controls_.txtParamName.setAccessibleName(L"Variable name");
  controls_.optNrValue.setAccessibleName(L"Numeric value");
  controls_.optObjValue.setAccessibleName(L"Object");
  controls_.grdParamStnd.view().setAccessibleName(L"Settings");
  controls_.cboUnit.setAccessibleName(L"Unit");
  controls_.lstObject.setAccessibleName(L"Object types");
}

Win32VariableDialog* Win32VariableDialogs::open() const {
  Win32VariableDialog* const last = *last_;
  return last != nullptr && last->dialog().isLoaded() ? last : nullptr;
}

std::unique_ptr<VariableDialogWindow> Win32VariableDialogs::createVariableDialog() {
  const ThemedScope themed;
  auto dialog = std::make_unique<Win32VariableDialog>(control_(), last_);
  dialog->dialog().window().setModality(modality_);
  dialog->dialog().window().setHelp(help_);
  return dialog;
}

}  // namespace mavCycEd::win32
