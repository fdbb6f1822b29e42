#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "kit/CellEdit.h"
#include "kit/GridKeys.h"
#include "kit/Lifeline.h"
#include "kit/ValueListRows.h"
#include "kit/ValueListScreen.h"
#include "platform/Timer.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd::kit {

/// A value list: what its owner and its user do to it, and what is told of that. A value is edited in its cell: a click
/// on it, F2, Enter or simply typing opens the editor; a value that was picked from its list is still being edited, so
/// that the next key leads on from there.
///
/// The screen that it is shown on may come and go; without one the list keeps what it holds. The list may be destroyed
/// by the answer to anything that it tells.
class ValueList {
 public:
  /// What became of a key in the grid.
  enum class KeyAnswer {
    NotTaken,
    Taken,
    IntoEditor,  ///< it has opened the editor, which is to get it
  };

  ValueList();
  ~ValueList() = default;
  ValueList(const ValueList&) = delete;
  ValueList& operator=(const ValueList&) = delete;

  /// nullptr for both: there is no screen.
  void setScreen(ValueListScreen* screen, CellEditor* editor);
  /// A screen that shows the rows; nullptr for none.
  void setObserver(ValueListRows::Observer* observer) { rows_.setObserver(observer); }
  /// The timer that makes the first row current, if it is to give way to the user: as soon as the user works in a row
  /// it is off, and the row is told in its place, also when it was current already. nullptr for none.
  void setFirstRowTimer(platform::Timer* timer) { firstRowTimer_ = timer; }
  /// Whether Enter opens the editor of the current row's value, as F2 does; it does unless the window has another use
  /// for the key.
  void setEnterOpens(bool opens) { enterOpens_ = opens; }

  const ValueListRows& rows() const { return rows_; }
  const CellEdit& edit() const { return edit_; }

  // The owner: platform::ValueListActiveX says what these do.
  void setEvents(platform::ValueListEvents events) { events_ = std::move(events); }
  void setTitle(int column, std::string_view title) { rows_.setTitle(column, title); }
  void setRow(int row);
  void focusValue(int row);
  void insertRow(std::string_view key, std::string_view value, bool append);
  void deleteRow(int row);
  void setValue(int column, int row, std::string_view text);
  void setPickList(int row, std::string_view items) { rows_.setPickList(row, items); }

  /// Ends an open edit as its user does.
  void endEdit() { edit_.end(); }

  // The user in the grid.
  /// The user makes a parameter row current, or works on in the one that is current.
  void chooseRow(int row);
  /// The user opens the editor of the current row's value, if there is a row.
  void editCurrentRow();
  void pressMouse(platform::MouseButton button, Place place);
  void moveMouse(Place place);
  void releaseMouse();
  /// The user asks for the pop-up menu with the mouse, or by its key.
  void askForMenu(Place place);
  void askForMenuByKey();
  /// Where the pop-up menu was last asked for.
  Place menuPlace() const { return menuPlace_; }
  KeyAnswer pressKey(const KeyPress& press);
  /// Whether a key is the grid's, also where the host has given it a meaning of its own.
  bool wantsKey(const KeyPress& press) const;

  // The user in the open editor.
  void typedInEditor() { edit_.typed(); }
  void pickedInEditor(int item);
  void focusLeftEditor(bool mouseIsDown) { edit_.focusLeft(mouseIsDown); }
  void mouseIsUp() { edit_.mouseIsUp(); }
  /// The editor is gone, and nobody has closed it.
  void editorIsGone() { edit_.drop(); }
  void pressMouseOnEditor(platform::MouseButton button, Place place);
  /// False for a key that is the editor's own.
  bool pressKeyInEditor(const KeyPress& press);
  bool wantsKeyInEditor(const KeyPress& press) const;

 private:
  void makeCurrent(int row);
  void openEditor();
  void goOn(int row, Step step);
  void tellPress(platform::MouseButton button, Place place);
  void tellMenu(Place place);
  std::string value(int row) const { return rows_.cell(ValueListRows::valueColumn, row); }

  ValueListRows rows_;
  CellEdit edit_;
  platform::ValueListEvents events_;
  ValueListScreen* screen_;
  platform::Timer* firstRowTimer_ = nullptr;
  Place menuPlace_;
  bool enterOpens_ = true;
  bool listWanted_ = false;  // the mouse button went down on an arrow
  Lifeline lifeline_;
};

}  // namespace mavCycEd::kit
