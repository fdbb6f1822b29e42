#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "memory/Control.h"
#include "memory/Lifetime.h"
#include "paramgrid/ValueListRows.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd::memory {

/// A value list without a screen.
class MemoryValueList : public platform::ValueListActiveX, public Control {
 public:
  using Control::Control;

  void setEvents(platform::ValueListEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override { caption_ = caption; }
  void setColumnTitle(int column, std::string_view title) override;
  int RowCount() const override { return rows_.rowCount(); }
  int Row() const override { return rows_.currentRow(); }
  void setRow(int row) override { rows_.setCurrentRow(row); }
  void focusValue(int row) override { rows_.setCurrentRow(row); }
  void InsertRow(std::string_view key, std::string_view value, bool append) override;
  void DeleteRow(int row) override;
  void setValue(int column, int row, std::string_view text) override;
  std::string cellText(int column, int row) const override;
  void setPickList(int row, std::string_view items) override { rows_.setPickList(row, items); }
  std::string toolTipText() const override { return toolTipText_; }
  void setToolTipText(std::string_view text) override { toolTipText_ = text; }
  platform::Font font() const override { return font_; }
  void setCellFont(const platform::Font& font) override { font_ = font; }

  const ValueListRows& rows() const { return rows_; }

  /// The user makes a parameter row current.
  void makeCurrent(int row);
  /// The user replaces a row's value by typing, a character at a time, and ends the edit. An empty text clears the
  /// cell.
  void type(int row, std::string_view typed);
  /// The user picks an item of a row's list.
  void pick(int row, std::string_view item);
  void pressMouse(platform::MouseButton button, int x, int y);
  void moveMouse(int x, int y);
  void requestContextMenu(int x, int y);

 private:
  void changeEditText(const std::string& text);

  platform::ValueListEvents events_;
  ValueListRows rows_;
  std::array<std::string, 2> titles_;
  std::string caption_;
  std::string toolTipText_;
  platform::Font font_;
  int editedRow_ = 0;  // the row whose value is being edited; 0: none
  Lifetime lifetime_;
};

}  // namespace mavCycEd::memory
