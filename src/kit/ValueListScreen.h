#pragma once

#include <string_view>

#include "kit/TypedLine.h"

namespace mavCycEd::kit {

/// A place in a grid on the screen, in the screen's pixels.
struct Place {
  int x = 0;
  int y = 0;
};

/// What is at a place of a grid.
struct GridHit {
  int row = 0;  ///< 0 for the title row, -1 below the rows
  bool onValue = false;
  bool onArrow = false;  ///< of a value that has a list
  int x = 0;             ///< in the grid's own units
  int y = 0;
};

/// What a value list needs of the screen that it is shown on.
class ValueListScreen {
 public:
  virtual ~ValueListScreen() = default;

  /// The current row is marked as such, and in view.
  virtual void showCurrentRow() = 0;
  /// The user has made another row current: assistive technology is told where the system does not do so by itself.
  virtual void announceCurrentRow() = 0;
  virtual GridHit hitAt(Place place) const = 0;
  /// The middle of a row's value.
  virtual Place middleOf(int row) const = 0;
  /// How far the page keys lead.
  virtual int pageRows() const = 0;
  /// Whether a user can work in the grid.
  virtual bool isUsable() const = 0;
  /// Whether the keyboard focus is in the grid and in no editor of it.
  virtual bool isFocused() const = 0;
  virtual void takeFocus() = 0;
  /// The focus goes on to the control behind the grid, or before it.
  virtual void passFocus(bool forward) = 0;
  virtual void copy(std::string_view text) = 0;
};

/// The editor that stands in a cell while its value is edited, on the screen.
class CellEditor {
 public:
  virtual ~CellEditor() = default;

  /// Puts the editor into the cell of a row's value, which is selected in it, and gives it the focus. False: there is
  /// no screen for it.
  virtual bool openEditor(int row) = 0;
  /// Takes the editor away. The focus stays in the grid if it was in the editor; nothing comes into view.
  virtual void closeEditor() = 0;
  virtual TypedLine line() const = 0;
  /// Shows another line. That is nobody's typing.
  virtual void showLine(const TypedLine& line) = 0;
  /// Whether something was typed that CellEdit::typed has not been told of yet; it counts as told from then on.
  virtual bool takeUntoldTyping() = 0;
  /// Opens the list of the value, if it has one.
  virtual void openList() = 0;
  /// From now on CellEdit::mouseIsUp is to be told when no mouse button is down and no list or menu open; or no more.
  virtual void watchMouse(bool watch) = 0;
};

}  // namespace mavCycEd::kit
