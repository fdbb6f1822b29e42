#include "win32/Win32ValueList.h"

#include "win32/Text.h"

namespace mavCycEd::win32 {

Win32ValueList::Win32ValueList(HWND parent, Win32Frame* frame) : label_(parent, frame), view_(rows_, parent, frame) {
  label_.setSelfVisible(false);
  connectView();
}

void Win32ValueList::connectView() {
  view_.setEvents(
      {.rowChosen = [this] { tell(events_.SelectionChange); },
       .mousePressed = [this](platform::MouseButton button, int x, int y) { tell(events_.MouseDown, button, x, y); },
       .mouseMoved = [this](int x, int y) { tell(events_.MouseMove, x, y); },
       .menuAskedFor = [this](int x, int y) { tell(events_.ContextPopup, x, y); }});
  view_.cellEdit().setEvents({.typed = [this](int row) { raiseSetEditText(row); },
                              .picked = [this](int row) { raiseEndOfEdit(row); },
                              .ended = [this](int row) { raiseEndOfEdit(row); },
                              .left = [this](int row, CellEdit::Step step) { view_.goOn(row, step); }});
}

void Win32ValueList::setCaption(std::string_view caption) {
  caption_ = caption;
  label_.setCaption(fromWide(withoutAccessKey(caption)));
  label_.setSelfVisible(!caption.empty());
}

void Win32ValueList::setColumnTitle(int column, std::string_view title) {
  rows_.titles.at(static_cast<std::size_t>(column)) = title;
  view_.repaint();
}

void Win32ValueList::setRow(int row) {
  rows_.rows.setCurrentRow(row);
  view_.showCurrentRow();
}

void Win32ValueList::focusValue(int row) {
  if (!rows_.rows.isParameterRow(row)) return;
  view_.cellEdit().drop();
  setRow(row);
  view_.editCurrentRow();
}

void Win32ValueList::InsertRow(std::string_view key, std::string_view value, bool append) {
  view_.cellEdit().rowInserted(rows_.rows.insert(key, value, append));
  view_.rowsChanged();
}

void Win32ValueList::DeleteRow(int row) {
  if (!rows_.rows.isParameterRow(row)) return;
  rows_.rows.remove(row);
  view_.cellEdit().rowRemoved(row);
  view_.rowsChanged();
  view_.showCurrentRow();
}

void Win32ValueList::setValue(int column, int row, std::string_view text) {
  if (!rows_.rows.setCell(column, row, text)) return;
  view_.repaint();
  if (column != GridRows::valueColumn || row != view_.cellEdit().row()) return;
  view_.cellEdit().replaceText(text);
  raiseSetEditText(row);
}

std::string Win32ValueList::cellText(int column, int row) const {
  if (row != 0) return rows_.rows.cell(column, row);
  return column == 0 || column == 1 ? rows_.titles[static_cast<std::size_t>(column)] : std::string();
}

void Win32ValueList::setPickList(int row, std::string_view items) {
  rows_.rows.setPickList(row, items);
  view_.repaint();
}

void Win32ValueList::setToolTipText(std::string_view text) {
  toolTipText_ = text;
  view_.setToolTip(toolTipText_);
}

void Win32ValueList::raiseSetEditText(int row) {
  tell(events_.SetEditText, GridRows::valueColumn, row, cellText(GridRows::valueColumn, row));
}

void Win32ValueList::raiseEndOfEdit(int row) {
  tell(events_.EndOfEdit, GridRows::valueColumn, row, cellText(GridRows::keyColumn, row),
       cellText(GridRows::valueColumn, row));
}

}  // namespace mavCycEd::win32
