#pragma once

#include "ControlDriver.h"
#include "MemoryControls.h"
#include "memory/HeadlessEditor.h"

namespace mavCycEd::play {

/// The memory edition, driven.
class MemoryDriver : public ControlDriver {
 public:
  MemoryDriver(const PlatformServices& services, CycleEditorErrorHandler onError)
      : headless_(services, std::move(onError)), controls_(headless_) {}

  void SetConfigXML(const std::string& strConfigXml) override;
  void SetXMLStrings(const std::string& strLatestKam, const std::string& strCycle) override;
  void Ignore_Hidden(bool booNewValue) override;
  bool CycleChanged() override;
  std::string RetrieveCycle() override;
  void ResetCycle(const std::string& strCycle) override;
  const EditorControl& editor() const override { return headless_.control(); }
  std::string MacroString() override;

  void chooseItem(std::string_view combo, const std::string& text) override;
  void typeInCombo(std::string_view combo, const std::string& text) override;
  void leaveCombo(std::string_view combo) override;
  void chooseInGrid(std::string_view grid, int row, const std::string& text) override;
  void editInGrid(std::string_view grid, int row, const std::string& text) override;
  void pressInGrid(std::string_view grid, int x, int y) override;
  void hoverOverGrid(std::string_view grid, int x, int y) override;
  std::optional<std::vector<std::string>> askForMenu(std::string_view grid, int x, int y) override;
  void chooseFromMenu(int place) override;
  void dismissMenu() override;
  void replaceText(std::string_view textBox, const std::string& text) override;
  void selectItem(std::string_view list, int index) override;
  void doubleClickItem(std::string_view list, int index) override;
  void clickButton(std::string_view button) override;
  void undo() override { headless_.control().Undo(); }
  void redo() override { headless_.control().Redo(); }
  void tick() override;

  void setWhileDialogOpen(std::function<void()> whileDialogOpen) override;
  bool isDialogOpen() const override { return controls_.dialog() != nullptr; }
  std::string dialogCaption() const override;
  void closeDialog() override;

  ListView list(std::string_view name) const override;
  SelectionListView selectionList(std::string_view name) const override;
  ComboView combo(std::string_view name) const override;
  TextBoxView textBox(std::string_view name) const override;
  FrameView frame(std::string_view name) const override;
  bool option(std::string_view name) const override;
  GridView grid(std::string_view name) const override;
  std::vector<std::string> menu(std::string_view name) const override;
  std::string toolTip() const override;
  TimerView timer(std::string_view name) const override;

 private:
  memory::MemoryPopupMenu* openMenu() const;

  memory::HeadlessEditor headless_;
  MemoryControls controls_;
};

}  // namespace mavCycEd::play
