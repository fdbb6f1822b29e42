#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "ControlDriver.h"
#include "Win32Controls.h"
#include "win32/Win32Editor.h"

namespace mavCycEd::play {

/// The Win32 edition, driven: an editor in a window of its own, with a user's keys and clicks as messages to its
/// windows.
class Win32Driver : public ControlDriver {
 public:
  /// `services` must hold a grid timer; `tick` makes it tick once if it is on.
  Win32Driver(win32::EditorServices services, CycleEditorErrorHandler onError, std::function<void()> tick);
  ~Win32Driver() override;
  Win32Driver(const Win32Driver&) = delete;
  Win32Driver& operator=(const Win32Driver&) = delete;

  void SetConfigXML(const std::string& strConfigXml) override;
  void SetXMLStrings(const std::string& strLatestKam, const std::string& strCycle) override;
  void Ignore_Hidden(bool booNewValue) override;
  bool CycleChanged() override;
  std::string RetrieveCycle() override;
  void ResetCycle(const std::string& strCycle) override;
  const EditorControl& editor() const override;
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
  void undo() override;
  void redo() override;
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

  /// The host's window around the editor.
  HWND hostWindow() const { return host_.handle(); }
  /// Deals with every message that waits, except the one that opens a pop-up menu.
  void settle();

 private:
  class DialogWatch;
  class MenuUser;

  win32::Win32PopupMenu* openMenu() const;
  void openMenuWith(const std::vector<WPARAM>& keys);
  void openListAnd(const std::function<void()>& useList);

  std::shared_ptr<platform::Timer> gridTimer_;
  std::function<void()> tick_;
  win32::PanelWindow host_;
  win32::Win32Editor editor_;
  Win32Controls controls_;
  std::unique_ptr<DialogWatch> dialogWatch_;
  std::optional<MSG> menuMessage_;  // the one that opens a pop-up menu
};

}  // namespace mavCycEd::play
