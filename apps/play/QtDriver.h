#pragma once

#include <QDialog>
#include <QPointer>
#include <functional>
#include <memory>

#include "ControlDriver.h"
#include "mavCycEd/ctlCycEd.h"
#include "qt/QtPopupMenu.h"

namespace mavCycEd::play {

/// The Qt edition, driven: a control that is shown, with a user's keys and clicks on its widgets. What is shown is read
/// from the widgets. A QApplication has to exist.
class QtDriver : public ControlDriver {
 public:
  /// `services` must hold a grid timer; `tick` makes it tick once if it is on.
  QtDriver(HostServices services, CycleEditorErrorHandler onError, std::function<void()> tick);
  ~QtDriver() override;
  QtDriver(const QtDriver&) = delete;
  QtDriver& operator=(const QtDriver&) = delete;

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
  void tick() override { tick_(); }

  void setWhileDialogOpen(std::function<void()> whileDialogOpen) override;
  bool isDialogOpen() const override;
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
  class DialogWatch;

  template <typename Widget>
  Widget& see(std::string_view name) const;
  template <typename Widget>
  Widget& use(std::string_view name) const;
  qt::PopupMenuWidget* openMenu() const;

  std::shared_ptr<platform::Timer> gridTimer_;
  std::function<void()> tick_;
  std::unique_ptr<ctlCycEd> control_;
  std::unique_ptr<DialogWatch> dialogWatch_;
};

}  // namespace mavCycEd::play
