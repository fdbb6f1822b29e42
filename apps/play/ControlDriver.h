#pragma once

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
struct FrameView {
  std::string caption;
  bool enabled = true;  ///< as seen on the screen: false also when a frame around it is disabled
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

  // The user.
  /// Picks the first item of exactly this text from a combo box.
  virtual void chooseItem(std::string_view combo, const std::string& text) = 0;
  /// Picks the first item of exactly this text from a grid row's pick list.
  virtual void chooseInGrid(std::string_view grid, int row, const std::string& text) = 0;
  /// Replaces a grid row's value by typing character by character, and ends the edit. An empty text clears the cell.
  virtual void editInGrid(std::string_view grid, int row, const std::string& text) = 0;
  /// Replaces the whole text of a text box in one change, as a paste does.
  virtual void replaceText(std::string_view textBox, const std::string& text) = 0;
  /// Clicks a list's item; -1: clicks where no item is.
  virtual void selectItem(std::string_view list, int index) = 0;
  virtual void doubleClickItem(std::string_view list, int index) = 0;
  virtual void clickButton(std::string_view button) = 0;
  /// The timer's interval has passed; nothing happens when it is off.
  virtual void tick() = 0;

  // The screen; an unknown name is a StepRefused.
  virtual ListView list(std::string_view name) const = 0;
  virtual ComboView combo(std::string_view name) const = 0;
  virtual std::string textBox(std::string_view name) const = 0;
  virtual FrameView frame(std::string_view name) const = 0;
  virtual GridView grid(std::string_view name) const = 0;
  virtual TimerView timer(std::string_view name) const = 0;
};

}  // namespace mavCycEd::play
