#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ControlDriver.h"
#include "win32/EditorScreen.h"

/// The controls of the Win32 edition by their names on the screen.
namespace mavCycEd::play {

template <typename Control>
struct NamedControl {
  std::string_view name;
  Control* control;
};

template <typename Control>
using NamedControls = std::vector<NamedControl<Control>>;

/// The controls of one kind in a screen or a dialog.
template <typename Control>
NamedControls<Control> controlsOf(win32::EditorControls&) {
  return {};
}
template <typename Control>
NamedControls<Control> controlsOf(win32::VariableDialogControls&) {
  return {};
}

template <>
inline NamedControls<win32::Win32ListBox> controlsOf(win32::EditorControls& c) {
  return {{"lstAtomSequence", &c.lstAtomSequence}, {"lstVariables", &c.lstVariables}};
}
template <>
inline NamedControls<win32::Win32ComboBox> controlsOf(win32::EditorControls& c) {
  return {{"cboAtom", &c.cboAtom}};
}
template <>
inline NamedControls<win32::Win32TextBox> controlsOf(win32::EditorControls& c) {
  return {{"txtCycleDescription", &c.txtCycleDescription}};
}
template <>
inline NamedControls<win32::Win32ValueList> controlsOf(win32::EditorControls& c) {
  return {{"GrdAtom", &c.GrdAtom}};
}
template <>
inline NamedControls<win32::Win32PopupMenu> controlsOf(win32::EditorControls& c) {
  return {{"mnuSubParam", &c.mnuSubParam}};
}
template <>
inline NamedControls<win32::Win32Button> controlsOf(win32::EditorControls& c) {
  return {{"cmdInset", &c.cmdInset}, {"cmdReplace", &c.cmdReplace}, {"cmdDelete", &c.cmdDelete},
          {"cmdIns", &c.cmdIns},     {"cmdDel", &c.cmdDel},         {"cmdDefault", &c.cmdDefault}};
}
template <>
inline NamedControls<win32::Win32Frame> controlsOf(win32::EditorControls& c) {
  return {{"fraCyclePart", &c.fraCyclePart},
          {"fraDescription", &c.fraDescription},
          {"fraAtom", &c.fraAtom},
          {"fraVariables", &c.fraVariables},
          {"fraSelectedMacro", &c.fraSelectedMacro}};
}

template <>
inline NamedControls<win32::Win32SelectionList> controlsOf(win32::VariableDialogControls& c) {
  return {{"lstObject", &c.lstObject}};
}
template <>
inline NamedControls<win32::Win32ComboBox> controlsOf(win32::VariableDialogControls& c) {
  return {{"cboUnit", &c.cboUnit}};
}
template <>
inline NamedControls<win32::Win32TextBox> controlsOf(win32::VariableDialogControls& c) {
  return {{"txtParamName", &c.txtParamName}};
}
template <>
inline NamedControls<win32::Win32ValueList> controlsOf(win32::VariableDialogControls& c) {
  return {{"grdParamStnd", &c.grdParamStnd}};
}
template <>
inline NamedControls<win32::Win32PopupMenu> controlsOf(win32::VariableDialogControls& c) {
  return {{"mnuSyrConstant", &c.mnuSyrConstant}};
}
template <>
inline NamedControls<win32::Win32Button> controlsOf(win32::VariableDialogControls& c) {
  return {{"OKButton", &c.OKButton}, {"cmdCancel", &c.cmdCancel}};
}
template <>
inline NamedControls<win32::Win32OptionButton> controlsOf(win32::VariableDialogControls& c) {
  return {{"optNrValue", &c.optNrValue}, {"optObjValue", &c.optObjValue}};
}
template <>
inline NamedControls<win32::Win32Frame> controlsOf(win32::VariableDialogControls& c) {
  return {{"fraValue", &c.fraValue},
          {"fraParamType", &c.fraParamType},
          {"fraValues", &c.fraValues},
          {"fraObjects", &c.fraObjects}};
}

/// The control of this name in a screen or a dialog; nullptr when it has none.
template <typename Control, typename Screen>
Control* findControl(Screen& screen, std::string_view name) {
  for (const auto& [known, control] : controlsOf<Control>(screen)) {
    if (known == name) return control;
  }
  return nullptr;
}

/// The window of a control.
template <typename Control>
HWND windowOf(Control& control) {
  return control.handle();
}
inline HWND windowOf(win32::Win32ValueList& grid) { return grid.view().handle(); }

/// The controls that there are at this moment: those of the screen, and those of the dialog while it is open.
class Win32Controls {
 public:
  explicit Win32Controls(win32::EditorScreen& screen) : screen_(screen) {}

  win32::VariableDialogControls* dialog() const {
    win32::Win32VariableDialog* const open = screen_.variableDialogs().open();
    return open == nullptr ? nullptr : &open->windows();
  }

  /// The control of this name, to look at it; a StepRefused when there is none.
  template <typename Control>
  Control& see(std::string_view name) const {
    Control* control = findControl<Control>(screen_.windows(), name);
    if (control == nullptr && dialog() != nullptr) control = findControl<Control>(*dialog(), name);
    if (control == nullptr) throw StepRefused("There is no such control here: " + std::string(name));
    return *control;
  }

  /// The same, for a user who works with it: a StepRefused also when it is disabled, or behind the open dialog.
  template <typename Control>
  Control& use(std::string_view name) const {
    Control& control = see<Control>(name);
    if (dialog() != nullptr && findControl<Control>(*dialog(), name) == nullptr) {
      throw StepRefused("The control " + std::string(name) + " is behind the open dialog frmparams.");
    }
    const HWND window = windowOf(control);
    if (IsWindowEnabled(window) == FALSE || IsWindowVisible(window) == FALSE) {
      throw StepRefused("The control " + std::string(name) + " is disabled.");
    }
    return control;
  }

 private:
  win32::EditorScreen& screen_;
};

}  // namespace mavCycEd::play
