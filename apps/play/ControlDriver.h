#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "control/EditorControl.h"

namespace mavCycEd::play {

/// A step that a user could not do: no such control or row, a disabled control, no such item. The text says which.
class StepRefused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What a person sees of a list box, a combo box, and so on.
struct ListView {
  std::vector<std::string> items;
  int index = -1;
};
struct ComboView {
  std::vector<std::string> items;
  std::string text;
  int index = -1;
};
struct TextBoxView {
  std::string text;
  bool enabled = true;
};
struct FrameView {
  std::string caption;
  bool enabled = true;  ///< as seen on the screen: false also when a frame around it is disabled
  bool visible = true;
};
struct SelectionListView {
  std::vector<std::string> items;
  std::vector<int> selected;
};
struct GridRowView {
  std::string key;
  std::string value;
  std::vector<std::string> items;  ///< the pick list
};
struct GridView {
  std::vector<std::string> titles;
  std::vector<GridRowView> rows;
  int row = 0;
};
struct TimerView {
  bool enabled = false;
  int interval = 0;
};

/// One edition of the control with a host's hands on its interface and a user's hands on its screen. Controls are
/// known by their names on the editor's screen. Every user's step throws StepRefused when a user could not do it.
class ControlDriver {
 public:
  virtual ~ControlDriver() = default;

  // The host.
  virtual void SetConfigXML(const std::string& strConfigXml) = 0;
  virtual void SetXMLStrings(const std::string& strLatestKam, const std::string& strCycle) = 0;
  virtual void Ignore_Hidden(bool booNewValue) = 0;
  virtual bool CycleChanged() = 0;
  virtual std::string RetrieveCycle() = 0;
  virtual void ResetCycle(const std::string& strCycle) = 0;
  /// What no window shows: the atom lines, the row table and the flags.
  virtual const EditorControl& editor() const = 0;

  /// The editor's state as a macro text; a service for C++ hosts.
  virtual std::string MacroString() = 0;

  // The user. While the variable dialog is open, only its own controls can be reached.
  /// Picks the first item of exactly this text from a combo box.
  virtual void chooseItem(std::string_view combo, const std::string& text) = 0;
  /// Replaces the text of a combo box that takes typed text, in one change.
  virtual void typeInCombo(std::string_view combo, const std::string& text) = 0;
  /// Moves the keyboard focus away from a combo box.
  virtual void leaveCombo(std::string_view combo) = 0;
  /// Picks the first item of exactly this text from a grid row's pick list.
  virtual void chooseInGrid(std::string_view grid, int row, const std::string& text) = 0;
  /// Replaces a grid row's value by typing character by character, and ends the edit. An empty text clears the cell.
  virtual void editInGrid(std::string_view grid, int row, const std::string& text) = 0;
  /// Presses the primary button in a grid, moves the pointer over it; in the grid's own units.
  virtual void pressInGrid(std::string_view grid, int x, int y) = 0;
  virtual void hoverOverGrid(std::string_view grid, int x, int y) = 0;
  /// Presses the secondary button in a grid and asks for its pop-up menu: the captions it shows, or nothing when none
  /// is shown.
  virtual std::optional<std::vector<std::string>> askForMenu(std::string_view grid, int x, int y) = 0;
  /// Chooses the entry at this place of the pop-up menu that is open.
  virtual void chooseFromMenu(int place) = 0;
  /// Closes a pop-up menu that is open without a choice.
  virtual void dismissMenu() = 0;
  /// Replaces the whole text of a text box in one change, as a paste does.
  virtual void replaceText(std::string_view textBox, const std::string& text) = 0;
  /// Clicks a list's item (-1: where no item is); in a list of several selections the click toggles the item.
  virtual void selectItem(std::string_view list, int index) = 0;
  virtual void doubleClickItem(std::string_view list, int index) = 0;
  /// Presses a button, or selects an option.
  virtual void clickButton(std::string_view button) = 0;
  /// Takes the last step back, or brings it again, by the keys for it.
  virtual void undo() = 0;
  virtual void redo() = 0;
  /// The timer's interval has passed; nothing happens when it is off.
  virtual void tick() = 0;

  // The variable dialog.
  /// What is called, inside the dialog's modal loop, as soon as the dialog is shown; when it returns and the dialog is
  /// still open, the dialog is closed.
  virtual void setWhileDialogOpen(std::function<void()> whileDialogOpen) = 0;
  virtual bool isDialogOpen() const = 0;
  virtual std::string dialogCaption() const = 0;
  /// Closes the open dialog's window by its frame.
  virtual void closeDialog() = 0;

  // The screen, and the dialog while it is open; an unknown name is a StepRefused.
  virtual ListView list(std::string_view name) const = 0;
  virtual SelectionListView selectionList(std::string_view name) const = 0;
  virtual ComboView combo(std::string_view name) const = 0;
  virtual TextBoxView textBox(std::string_view name) const = 0;
  virtual FrameView frame(std::string_view name) const = 0;
  virtual bool option(std::string_view name) const = 0;
  virtual GridView grid(std::string_view name) const = 0;
  /// The captions of a menu's visible items, whether the menu is open or not.
  virtual std::vector<std::string> menu(std::string_view name) const = 0;
  /// The tool tip of the parameter grid.
  virtual std::string toolTip() const = 0;
  virtual TimerView timer(std::string_view name) const = 0;
};

}  // namespace mavCycEd::play
