#include "MemoryDriver.h"

#include <algorithm>
#include <array>
#include <utility>

namespace mavCycEd::play {
namespace {

using memory::MemoryScreen;

/// A control's name on the screen and where it is found.
template <typename Control>
struct Named {
  std::string_view name;
  Control MemoryScreen::*control;
};

constexpr std::array lists{Named<memory::MemoryListBox>{"lstAtomSequence", &MemoryScreen::lstAtomSequence},
                           Named<memory::MemoryListBox>{"lstVariables", &MemoryScreen::lstVariables}};
constexpr std::array combos{Named<memory::MemoryComboBox>{"cboAtom", &MemoryScreen::cboAtom}};
constexpr std::array textBoxes{Named<memory::MemoryTextBox>{"txtCycleDescription", &MemoryScreen::txtCycleDescription}};
constexpr std::array grids{Named<memory::MemoryValueList>{"GrdAtom", &MemoryScreen::GrdAtom}};
constexpr std::array timers{Named<memory::MemoryTimer>{"tmrUpdateGrid", &MemoryScreen::tmrUpdateGrid}};
constexpr std::array buttons{Named<memory::MemoryButton>{"cmdInset", &MemoryScreen::cmdInset},
                             Named<memory::MemoryButton>{"cmdReplace", &MemoryScreen::cmdReplace},
                             Named<memory::MemoryButton>{"cmdDelete", &MemoryScreen::cmdDelete},
                             Named<memory::MemoryButton>{"cmdIns", &MemoryScreen::cmdIns},
                             Named<memory::MemoryButton>{"cmdDel", &MemoryScreen::cmdDel},
                             Named<memory::MemoryButton>{"cmdDefault", &MemoryScreen::cmdDefault}};
constexpr std::array frames{Named<memory::MemoryFrame>{"fraCyclePart", &MemoryScreen::fraCyclePart},
                            Named<memory::MemoryFrame>{"fraDescription", &MemoryScreen::fraDescription},
                            Named<memory::MemoryFrame>{"fraAtom", &MemoryScreen::fraAtom},
                            Named<memory::MemoryFrame>{"fraVariables", &MemoryScreen::fraVariables},
                            Named<memory::MemoryFrame>{"fraSelectedMacro", &MemoryScreen::fraSelectedMacro}};

// The control of this name; a StepRefused when there is none.
template <typename Screen, typename Table>
auto& find(Screen& screen, const Table& table, std::string_view name) {
  const auto* const entry = std::ranges::find(table, name, [](const auto& named) { return named.name; });
  if (entry == table.end()) throw StepRefused("There is no such control here: " + std::string(name));
  return screen.*(entry->control);
}

// The same, for a user who wants to work with it.
template <typename Table>
auto& use(MemoryScreen& screen, const Table& table, std::string_view name) {
  auto& control = find(screen, table, name);
  if (!control.isUsable()) throw StepRefused("The control " + std::string(name) + " is disabled.");
  return control;
}

memory::MemoryValueList& useRow(MemoryScreen& screen, std::string_view grid, int row) {
  memory::MemoryValueList& control = use(screen, grids, grid);
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

void MemoryDriver::chooseItem(std::string_view combo, const std::string& text) {
  memory::MemoryComboBox& control = use(headless_.screen(), combos, combo);
  const auto item = std::ranges::find(control.items(), text);
  if (item == control.items().end()) throw StepRefused(std::string(combo) + " has no item " + text + ".");
  control.setIndex(static_cast<int>(item - control.items().begin()));
}

void MemoryDriver::chooseInGrid(std::string_view grid, int row, const std::string& text) {
  memory::MemoryValueList& control = useRow(headless_.screen(), grid, row);
  const auto& items = control.rows().entry(row)->pickList;
  if (std::ranges::find(items, text) == items.end()) {
    throw StepRefused("The pick list of row " + std::to_string(row) + " has no item " + text + ".");
  }
  control.pick(row, text);
}

void MemoryDriver::editInGrid(std::string_view grid, int row, const std::string& text) {
  useRow(headless_.screen(), grid, row).type(row, text);
}

void MemoryDriver::replaceText(std::string_view textBox, const std::string& text) {
  use(headless_.screen(), textBoxes, textBox).replace(text);
}

void MemoryDriver::selectItem(std::string_view list, int index) {
  memory::MemoryListBox& control = use(headless_.screen(), lists, list);
  if (index < -1 || index >= control.itemCount()) {
    throw StepRefused(std::string(list) + " has no item " + std::to_string(index) + ".");
  }
  control.setIndex(index);
}

void MemoryDriver::doubleClickItem(std::string_view list, int index) {
  memory::MemoryListBox& control = use(headless_.screen(), lists, list);
  if (index < 0 || index >= control.itemCount()) {
    throw StepRefused(std::string(list) + " has no item " + std::to_string(index) + ".");
  }
  control.doubleClick(index);
}

void MemoryDriver::clickButton(std::string_view button) { use(headless_.screen(), buttons, button).press(); }

void MemoryDriver::tick() { headless_.screen().tmrUpdateGrid.fire(); }

ListView MemoryDriver::list(std::string_view name) const {
  const memory::MemoryListBox& control = find(headless_.screen(), lists, name);
  return {control.items(), control.index()};
}

ComboView MemoryDriver::combo(std::string_view name) const {
  const memory::MemoryComboBox& control = find(headless_.screen(), combos, name);
  return {control.items(), control.text(), control.index()};
}

std::string MemoryDriver::textBox(std::string_view name) const {
  return find(headless_.screen(), textBoxes, name).text();
}

FrameView MemoryDriver::frame(std::string_view name) const {
  const memory::MemoryFrame& control = find(headless_.screen(), frames, name);
  return {control.caption(), control.isUsable()};
}

GridView MemoryDriver::grid(std::string_view name) const {
  const memory::MemoryValueList& control = find(headless_.screen(), grids, name);
  GridView view;
  view.titles = {control.cellText(0, 0), control.cellText(1, 0)};
  for (int row = 1; row < control.RowCount(); ++row) {
    const ValueListRows::Entry& entry = *control.rows().entry(row);
    view.rows.push_back({entry.key, entry.value, entry.pickList});
  }
  view.row = control.Row();
  return view;
}

TimerView MemoryDriver::timer(std::string_view name) const {
  const memory::MemoryTimer& control = find(headless_.screen(), timers, name);
  return {control.isEnabled(), control.interval()};
}

}  // namespace mavCycEd::play
