#pragma once

#include <memory>

#include "ControlDriver.h"
#include "memory/HeadlessEditor.h"

namespace mavCycEd::play {

/// The memory edition, driven.
class MemoryDriver : public ControlDriver {
 public:
  MemoryDriver(const PlatformServices& services, CycleEditorErrorHandler onError)
      : headless_(services, std::move(onError)) {}

  void SetConfigXML(const std::string& strConfigXml) override;
  void SetXMLStrings(const std::string& strLatestKam, const std::string& strCycle) override;
  void Ignore_Hidden(bool booNewValue) override;
  bool CycleChanged() override;
  std::string RetrieveCycle() override;
  void ResetCycle(const std::string& strCycle) override;
  const EditorControl& editor() const override { return headless_.control(); }

  void chooseItem(std::string_view combo, const std::string& text) override;
  void chooseInGrid(std::string_view grid, int row, const std::string& text) override;
  void editInGrid(std::string_view grid, int row, const std::string& text) override;
  void replaceText(std::string_view textBox, const std::string& text) override;
  void selectItem(std::string_view list, int index) override;
  void doubleClickItem(std::string_view list, int index) override;
  void clickButton(std::string_view button) override;
  void tick() override;

  ListView list(std::string_view name) const override;
  ComboView combo(std::string_view name) const override;
  std::string textBox(std::string_view name) const override;
  FrameView frame(std::string_view name) const override;
  GridView grid(std::string_view name) const override;
  TimerView timer(std::string_view name) const override;

 private:
  memory::HeadlessEditor headless_;
};

}  // namespace mavCycEd::play
