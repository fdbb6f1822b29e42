#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Font.h"

namespace mavCycEd::platform {

/// The buttons a grid's mouse notifications name.
enum class MouseButton { Primary = 0, Secondary = 1, Middle = 2 };

/// What a value list tells its owner. Columns: 0 the key, 1 the value. Row 0 is the title row.
/// Positions are in the grid's own units, whatever the fonts, the scaling and the dragged column width are on screen:
/// row r covers y from 19 r to 19 r + 18, and the value column begins at x = 151.
struct ValueListEvents {
  /// The user made another row current (clicked it, moved to it, typed into it or picked from its list).
  std::function<void()> SelectionChange;
  /// The user asks for the pop-up menu at this position.
  std::function<void(int x, int y)> ContextPopup;
  std::function<void(MouseButton button, int x, int y)> MouseDown;
  std::function<void(int x, int y)> MouseMove;
  /// The text of the cell being edited changed to `value`: by a keystroke, or by setValue into that very cell.
  std::function<void(int column, int row, const std::string& value)> SetEditText;
  /// The user ended the edit of a cell, or picked its value from the row's list.
  std::function<void(int column, int row, const std::string& key, const std::string& value)> EndOfEdit;
};

/// A two-column list of keys and values; the values are edited in place.
class ValueListActiveX {
 public:
  virtual ~ValueListActiveX() = default;

  virtual void setEvents(ValueListEvents events) = 0;

  /// The caption above the list.
  virtual std::string caption() const = 0;
  virtual void setCaption(std::string_view caption) = 0;
  virtual void setColumnTitle(int column, std::string_view title) = 0;

  /// The number of rows, the title row included.
  virtual int RowCount() const = 0;
  /// The current row: 0 only when there is no parameter row, otherwise a parameter row.
  virtual int Row() const = 0;
  /// Makes a parameter row current; any other number is ignored. Raises nothing.
  virtual void setRow(int row) = 0;

  /// Makes a parameter row current and gives its value the keyboard focus, ready to be typed over; any other number is
  /// ignored. Raises nothing.
  virtual void focusValue(int row) = 0;

  /// Adds a row: at the end, or as row 1 when `append` is false.
  virtual void InsertRow(std::string_view key, std::string_view value, bool append) = 0;
  /// Removes a parameter row; any other number is ignored. Raises nothing.
  virtual void DeleteRow(int row) = 0;

  /// Writes a cell of a parameter row; beyond the last row it does nothing. Raises SetEditText only when that cell is
  /// being edited at this moment.
  virtual void setValue(int column, int row, std::string_view text) = 0;
  /// A cell's text: row 0 gives the titles; a cell beyond the last row reads as an empty text.
  virtual std::string cellText(int column, int row) const = 0;

  /// Gives a row the items that its value can be picked from, separated by ";"; an empty text takes the list away.
  virtual void setPickList(int row, std::string_view items) = 0;

  virtual std::string toolTipText() const = 0;
  virtual void setToolTipText(std::string_view text) = 0;

  virtual Font font() const = 0;
  /// The font the cells are drawn in.
  virtual void setCellFont(const Font& font) = 0;
};

}  // namespace mavCycEd::platform
