#include "MemoryDriver.h"

#include <algorithm>
#include <utility>

#include "text/LineEnds.h"

namespace mavCycEd::play {

using namespace memory;

namespace {

template <typename Items>
int indexOf(const Items& items, std::string_view control, const std::string& text) {
  const auto item = std::ranges::find(items, text);
  if (item == items.end()) throw StepRefused(std::string(control) + " has no item " + text + ".");
  return static_cast<int>(item - items.begin());
}

void checkIndex(int index, int lowest, int count, std::string_view list) {
  if (index < lowest || index >= count) {
    throw StepRefused(std::string(list) + " has no item " + std::to_string(index) + ".");
  }
}

MemoryValueList& useRow(MemoryControls& controls, std::string_view grid, int row) {
  auto& control = controls.use<MemoryValueList>(grid);
  if (!control.rows().isParameterRow(row)) {
    throw StepRefused(std::string(grid) + " has no parameter row " + std::to_string(row) + ".");
  }
  return control;
}

}  // namespace

void MemoryDriver::SetConfigXML(const std::string& strConfigXml) { headless_.control().SetConfigXML(strConfigXml); }

void MemoryDriver::SetXMLStrings(const std::string& strLatestKam, const std::string& strCycle) {
  headless_.control().SetXMLStrings(strLatestKam, strCycle);
}

void MemoryDriver::Ignore_Hidden(bool booNewValue) { headless_.control().Ignore_Hidden(booNewValue); }
bool MemoryDriver::CycleChanged() { return headless_.control().CycleChanged(); }
std::string MemoryDriver::RetrieveCycle() { return headless_.control().RetrieveCycle(); }
void MemoryDriver::ResetCycle(const std::string& strCycle) { headless_.control().ResetCycle(strCycle); }
std::string MemoryDriver::MacroString() { return headless_.control().MacroString(); }

void MemoryDriver::chooseItem(std::string_view combo, const std::string& text) {
  auto& control = controls_.use<MemoryComboBox>(combo);
  control.setIndex(indexOf(control.items(), combo, text));
}

void MemoryDriver::typeInCombo(std::string_view combo, const std::string& text) {
  auto& control = controls_.use<MemoryComboBox>(combo);
  if (combo == "cboAtom") throw StepRefused("Nothing can be typed into cboAtom.");
  control.type(text);
}

void MemoryDriver::leaveCombo(std::string_view combo) {
  controls_.use<MemoryComboBox>(combo);
  controls_.moveFocusTo({});
}

void MemoryDriver::chooseInGrid(std::string_view grid, int row, const std::string& text) {
  MemoryValueList& control = useRow(controls_, grid, row);
  indexOf(control.rows().entry(row)->pickList, "The pick list of row " + std::to_string(row), text);
  control.pick(row, text);
}

void MemoryDriver::editInGrid(std::string_view grid, int row, const std::string& text) {
  useRow(controls_, grid, row).type(row, text);
}

void MemoryDriver::pressInGrid(std::string_view grid, int x, int y) {
  controls_.use<MemoryValueList>(grid).pressMouse(platform::MouseButton::Primary, x, y);
}

void MemoryDriver::hoverOverGrid(std::string_view grid, int x, int y) {
  controls_.reach<MemoryValueList>(grid).moveMouse(x, y);
}

std::optional<std::vector<std::string>> MemoryDriver::askForMenu(std::string_view grid, int x, int y) {
  auto& control = controls_.use<MemoryValueList>(grid);
  control.pressMouse(platform::MouseButton::Secondary, x, y);
  control.requestContextMenu(x, y);
  const MemoryPopupMenu* const shown = openMenu();
  if (shown == nullptr) return std::nullopt;
  return shown->visibleCaptions();
}

MemoryPopupMenu* MemoryDriver::openMenu() const {
  auto& menu =
      isDialogOpen() ? controls_.see<MemoryPopupMenu>("mnuSyrConstant") : controls_.see<MemoryPopupMenu>("mnuSubParam");
  return menu.isOpen() ? &menu : nullptr;
}

void MemoryDriver::chooseFromMenu(int place) {
  MemoryPopupMenu* const shown = openMenu();
  if (shown == nullptr) throw StepRefused("No pop-up menu is open.");
  if (!shown->choose(place)) throw StepRefused("The pop-up menu has no entry " + std::to_string(place) + ".");
}

void MemoryDriver::dismissMenu() {
  if (MemoryPopupMenu* const shown = openMenu()) shown->dismiss();
}

void MemoryDriver::replaceText(std::string_view textBox, const std::string& text) {
  controls_.use<MemoryTextBox>(textBox).replace(text);
}

void MemoryDriver::selectItem(std::string_view list, int index) {
  if (list == "lstObject") {
    auto& control = controls_.use<MemorySelectionList>(list);
    checkIndex(index, 0, control.itemCount(), list);
    control.toggle(index);
    return;
  }
  auto& control = controls_.use<MemoryListBox>(list);
  checkIndex(index, -1, control.itemCount(), list);
  control.setIndex(index);
}

void MemoryDriver::doubleClickItem(std::string_view list, int index) {
  auto& control = controls_.use<MemoryListBox>(list);
  checkIndex(index, 0, control.itemCount(), list);
  control.doubleClick(index);
}

void MemoryDriver::clickButton(std::string_view button) {
  if (button.starts_with("opt")) {
    controls_.use<MemoryOptionButton>(button).press();
  } else {
    controls_.use<MemoryButton>(button).press();
  }
}

void MemoryDriver::tick() { headless_.screen().tmrUpdateGrid.fire(); }

void MemoryDriver::setWhileDialogOpen(std::function<void()> whileDialogOpen) {
  headless_.screen().variableDialogs.setUser(
      [user = std::move(whileDialogOpen)](MemoryVariableDialogControls&) { user(); });
}

std::string MemoryDriver::dialogCaption() const {
  return isDialogOpen() ? controls_.dialog()->frmparams.caption() : "";
}

void MemoryDriver::closeDialog() {
  if (!isDialogOpen()) throw StepRefused("No dialog is open.");
  controls_.dialog()->frmparams.closeWindow();
}

ListView MemoryDriver::list(std::string_view name) const {
  const auto& control = controls_.see<MemoryListBox>(name);
  return {control.items(), control.index()};
}

SelectionListView MemoryDriver::selectionList(std::string_view name) const {
  const auto& control = controls_.see<MemorySelectionList>(name);
  SelectionListView view;
  for (int i = 0; i < control.itemCount(); ++i) {
    view.items.push_back(control.itemText(i));
    if (control.isSelected(i)) view.selected.push_back(i);
  }
  return view;
}

ComboView MemoryDriver::combo(std::string_view name) const {
  const auto& control = controls_.see<MemoryComboBox>(name);
  return {control.items(), control.text(), control.index()};
}

TextBoxView MemoryDriver::textBox(std::string_view name) const {
  const auto& control = controls_.see<MemoryTextBox>(name);
  // What a person sees: lines, whatever ends them.
  return {control.hasOneLine() ? control.text() : text::typedToCrLf(control.text()), control.isUsable()};
}

FrameView MemoryDriver::frame(std::string_view name) const {
  const auto& control = controls_.see<MemoryFrame>(name);
  return {control.caption(), control.isEnabledHere(), control.isVisible()};
}

bool MemoryDriver::option(std::string_view name) const { return controls_.see<MemoryOptionButton>(name).value(); }

GridView MemoryDriver::grid(std::string_view name) const {
  const auto& control = controls_.see<MemoryValueList>(name);
  GridView view;
  view.titles = {control.cellText(0, 0), control.cellText(1, 0)};
  for (int row = 1; row < control.RowCount(); ++row) {
    const kit::ValueListRows::Entry& entry = *control.rows().entry(row);
    view.rows.push_back({entry.key, entry.value, entry.pickList});
  }
  view.row = control.Row();
  return view;
}

std::vector<std::string> MemoryDriver::menu(std::string_view name) const {
  return controls_.see<MemoryPopupMenu>(name).visibleCaptions();
}

std::string MemoryDriver::toolTip() const { return headless_.screen().GrdAtom.toolTipText(); }

TimerView MemoryDriver::timer(std::string_view name) const {
  const auto& control = controls_.see<MemoryTimer>(name);
  return {control.isEnabled(), control.interval()};
}

}  // namespace mavCycEd::play
