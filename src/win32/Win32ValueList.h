#pragma once

#include <string>
#include <utility>

#include "platform/ValueListActiveX.h"
#include "win32/GridRows.h"
#include "win32/ValueListView.h"
#include "win32/Win32Label.h"

namespace mavCycEd::win32 {

/// A value list: a caption and a grid of keys and values.
///
/// An edit that its user gives up (Esc) writes the value back that the cell had before, and tells nothing. An edit in
/// which nothing was typed ends without a word, too.
class Win32ValueList : public platform::ValueListActiveX {
 public:
  Win32ValueList(HWND parent, Win32Frame* frame);

  Win32Label& label() { return label_; }
  ValueListView& view() { return view_; }
  const GridRows& gridRows() const { return rows_; }
  bool isEditing() const { return view_.cellEdit().isOpen(); }
  /// Ends an open edit as its user does.
  void endEdit() { view_.cellEdit().end(); }

  void setEvents(platform::ValueListEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  void setColumnTitle(int column, std::string_view title) override;
  int RowCount() const override { return rows_.rows.rowCount(); }
  int Row() const override { return rows_.rows.currentRow(); }
  void setRow(int row) override;
  void focusValue(int row) override;
  void InsertRow(std::string_view key, std::string_view value, bool append) override;
  void DeleteRow(int row) override;
  void setValue(int column, int row, std::string_view text) override;
  std::string cellText(int column, int row) const override;
  void setPickList(int row, std::string_view items) override;
  std::string toolTipText() const override { return toolTipText_; }
  void setToolTipText(std::string_view text) override;
  platform::Font font() const override { return view_.font(); }
  void setCellFont(const platform::Font& font) override { view_.setFont(font); }

 private:
  void connectView();
  void raiseSetEditText(int row);
  void raiseEndOfEdit(int row);

  GridRows rows_;
  Win32Label label_;
  ValueListView view_;
  platform::ValueListEvents events_;
  std::string caption_;
  std::string toolTipText_;
};

}  // namespace mavCycEd::win32
