#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "ControlDriver.h"
#include "memory/HeadlessEditor.h"

/// The controls of the memory edition by their names on the screen.
namespace mavCycEd::play {

/// A control's name and where a screen has it.
template <typename Screen, typename Control>
struct Named {
  std::string_view name;
  Control Screen::*control;
};

template <typename Control>
using OnScreen = Named<memory::MemoryScreen, Control>;
template <typename Control>
using InDialog = Named<memory::MemoryVariableDialogControls, Control>;

/// The controls of one kind on the editor's screen, and in the variable dialog.
template <typename Control>
inline constexpr std::array<OnScreen<Control>, 0> screenControls{};
template <typename Control>
inline constexpr std::array<InDialog<Control>, 0> dialogControls{};

/// A list box of either kind.
struct ListOnScreen {
  std::string_view name;
  memory::MemoryListBox& (*control)(memory::MemoryScreen& screen);
};
template <>
inline constexpr std::array screenControls<memory::MemoryListBox>{
    ListOnScreen{"lstAtomSequence",
                 [](memory::MemoryScreen& screen) -> memory::MemoryListBox& { return screen.lstAtomSequence; }},
    ListOnScreen{"lstVariables",
                 [](memory::MemoryScreen& screen) -> memory::MemoryListBox& { return screen.lstVariables; }}};
template <>
inline constexpr std::array screenControls<memory::MemoryComboBox>{
    OnScreen<memory::MemoryComboBox>{"cboAtom", &memory::MemoryScreen::cboAtom}};
template <>
inline constexpr std::array screenControls<memory::MemoryTextBox>{
    OnScreen<memory::MemoryTextBox>{"txtCycleDescription", &memory::MemoryScreen::txtCycleDescription}};
template <>
inline constexpr std::array screenControls<memory::MemoryValueList>{
    OnScreen<memory::MemoryValueList>{"GrdAtom", &memory::MemoryScreen::GrdAtom}};
template <>
inline constexpr std::array screenControls<memory::MemoryPopupMenu>{
    OnScreen<memory::MemoryPopupMenu>{"mnuSubParam", &memory::MemoryScreen::mnuSubParam}};
template <>
inline constexpr std::array screenControls<memory::MemoryTimer>{
    OnScreen<memory::MemoryTimer>{"tmrUpdateGrid", &memory::MemoryScreen::tmrUpdateGrid}};
template <>
inline constexpr std::array screenControls<memory::MemoryButton>{
    OnScreen<memory::MemoryButton>{"cmdInset", &memory::MemoryScreen::cmdInset},
    OnScreen<memory::MemoryButton>{"cmdReplace", &memory::MemoryScreen::cmdReplace},
    OnScreen<memory::MemoryButton>{"cmdDelete", &memory::MemoryScreen::cmdDelete},
    OnScreen<memory::MemoryButton>{"cmdIns", &memory::MemoryScreen::cmdIns},
    OnScreen<memory::MemoryButton>{"cmdDel", &memory::MemoryScreen::cmdDel},
    OnScreen<memory::MemoryButton>{"cmdDefault", &memory::MemoryScreen::cmdDefault}};
template <>
inline constexpr std::array screenControls<memory::MemoryFrame>{
    OnScreen<memory::MemoryFrame>{"fraCyclePart", &memory::MemoryScreen::fraCyclePart},
    OnScreen<memory::MemoryFrame>{"fraDescription", &memory::MemoryScreen::fraDescription},
    OnScreen<memory::MemoryFrame>{"fraAtom", &memory::MemoryScreen::fraAtom},
    OnScreen<memory::MemoryFrame>{"fraVariables", &memory::MemoryScreen::fraVariables},
    OnScreen<memory::MemoryFrame>{"fraSelectedMacro", &memory::MemoryScreen::fraSelectedMacro}};

template <>
inline constexpr std::array dialogControls<memory::MemorySelectionList>{
    InDialog<memory::MemorySelectionList>{"lstObject", &memory::MemoryVariableDialogControls::lstObject}};
template <>
inline constexpr std::array dialogControls<memory::MemoryComboBox>{
    InDialog<memory::MemoryComboBox>{"cboUnit", &memory::MemoryVariableDialogControls::cboUnit}};
template <>
inline constexpr std::array dialogControls<memory::MemoryTextBox>{
    InDialog<memory::MemoryTextBox>{"txtParamName", &memory::MemoryVariableDialogControls::txtParamName}};
template <>
inline constexpr std::array dialogControls<memory::MemoryValueList>{
    InDialog<memory::MemoryValueList>{"grdParamStnd", &memory::MemoryVariableDialogControls::grdParamStnd}};
template <>
inline constexpr std::array dialogControls<memory::MemoryPopupMenu>{
    InDialog<memory::MemoryPopupMenu>{"mnuSyrConstant", &memory::MemoryVariableDialogControls::mnuSyrConstant}};
template <>
inline constexpr std::array dialogControls<memory::MemoryButton>{
    InDialog<memory::MemoryButton>{"OKButton", &memory::MemoryVariableDialogControls::OKButton},
    InDialog<memory::MemoryButton>{"cmdCancel", &memory::MemoryVariableDialogControls::cmdCancel}};
template <>
inline constexpr std::array dialogControls<memory::MemoryOptionButton>{
    InDialog<memory::MemoryOptionButton>{"optNrValue", &memory::MemoryVariableDialogControls::optNrValue},
    InDialog<memory::MemoryOptionButton>{"optObjValue", &memory::MemoryVariableDialogControls::optObjValue}};
template <>
inline constexpr std::array dialogControls<memory::MemoryFrame>{
    InDialog<memory::MemoryFrame>{"fraValue", &memory::MemoryVariableDialogControls::fraValue},
    InDialog<memory::MemoryFrame>{"fraParamType", &memory::MemoryVariableDialogControls::fraParamType},
    InDialog<memory::MemoryFrame>{"fraValues", &memory::MemoryVariableDialogControls::fraValues},
    InDialog<memory::MemoryFrame>{"fraObjects", &memory::MemoryVariableDialogControls::fraObjects}};

/// The control of this name in a table; nullptr when the table has none.
template <typename Control, typename Screen, typename Table>
Control* findIn(Screen& screen, const Table& table, std::string_view name) {
  const auto entry = std::ranges::find_if(table, [name](const auto& named) { return named.name == name; });
  return entry == table.end() ? nullptr : &std::invoke(entry->control, screen);
}

/// The controls that there are at this moment: those of the screen, and those of the dialog while it is open.
class MemoryControls {
 public:
  explicit MemoryControls(memory::HeadlessEditor& headless) : headless_(headless) {}

  /// The control of this name, to look at it; a StepRefused when there is none.
  template <typename Control>
  Control& see(std::string_view name) const {
    Control* const control = find<Control>(name);
    if (control == nullptr) throw StepRefused("There is no such control here: " + std::string(name));
    return *control;
  }

  /// The same, for a user whose pointer goes there: a StepRefused also when it is disabled, or behind the open dialog.
  template <typename Control>
  Control& reach(std::string_view name) const {
    Control& control = see<Control>(name);
    if (dialog() != nullptr && inDialog<Control>(name) == nullptr) {
      throw StepRefused("The control " + std::string(name) + " is behind the open dialog frmparams.");
    }
    if (!control.isUsable()) throw StepRefused("The control " + std::string(name) + " is disabled.");
    return control;
  }

  /// The same, for a user who works with it: it gets the keyboard focus.
  template <typename Control>
  Control& use(std::string_view name) {
    Control& control = reach<Control>(name);
    moveFocusTo(name);
    return control;
  }

  /// The keyboard focus goes to another control; the one that had it is told, if it tells of that.
  void moveFocusTo(std::string_view name) {
    if (focused_ == name) return;
    const std::string left = std::exchange(focused_, name);
    if (auto* const combo = inDialog<memory::MemoryComboBox>(left)) combo->leave();
    if (auto* const box = find<memory::MemoryTextBox>(left)) box->leave();
  }

  memory::MemoryVariableDialogControls* dialog() const {
    memory::MemoryVariableDialogControls* const open = headless_.screen().variableDialogs.open();
    return open != nullptr && open->frmparams.isLoaded() ? open : nullptr;
  }

 private:
  template <typename Control>
  Control* find(std::string_view name) const {
    Control* const control = findIn<Control>(headless_.screen(), screenControls<Control>, name);
    return control != nullptr ? control : inDialog<Control>(name);
  }
  template <typename Control>
  Control* inDialog(std::string_view name) const {
    return dialog() == nullptr ? nullptr : findIn<Control>(*dialog(), dialogControls<Control>, name);
  }

  memory::HeadlessEditor& headless_;
  std::string focused_;  // the control that has the keyboard focus
};

}  // namespace mavCycEd::play
