#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "win32/CellEditor.h"
#include "win32/GridRows.h"
#include "win32/MessageWindow.h"
#include "win32/Notify.h"

namespace mavCycEd::win32 {

class ValueListView;

/// The edit of one value in its cell, from the opening of the editor to the edit's end. Every keystroke goes into the
/// rows at once, so that an edit may end in any way without losing what was typed.
class CellEdit : private MessageWindow {
 public:
  /// Where the keys lead that end an edit.
  enum class Step { NextCell, PreviousCell, NextLine, Up, Down, PageUp, PageDown };

  struct Events {
    std::function<void(int row)> typed;            ///< the user typed; the row's value has been written
    std::function<void(int row)> picked;           ///< the user picked the value from the row's list; it is written
    std::function<void(int row)> ended;            ///< the edit of a row has ended
    std::function<void(int row, Step step)> left;  ///< a key has ended the edit of `row` and leads elsewhere
  };

  CellEdit(GridRows& rows, ValueListView& view) : rows_(rows), view_(view) {}
  void setEvents(Events events) { events_ = std::move(events); }

  bool isOpen() const { return editor_ != nullptr; }
  /// The row being edited, 0 when none is.
  int row() const { return isOpen() ? row_ : 0; }
  /// The window that the keys go to; nullptr when no edit is open.
  HWND line() const { return isOpen() ? editor_->line() : nullptr; }

  /// Opens the editor on a parameter row's value, all of it selected.
  void open(int row);
  /// Opens the list of the row being edited, if it has one.
  void showList();
  /// The row being edited shows this text from now on, the cursor behind it; the edit goes on.
  void replaceText(std::string_view text);
  /// The editor stands where its cell stands.
  void follow();

  /// Ends the edit; what was typed stays. Only an edit in which something was typed tells of its end.
  void end();
  /// Closes the editor and tells nothing: its row goes.
  void drop() { close(); }

  /// Rows have come or gone in front of others.
  void rowInserted(int row);
  void rowRemoved(int row);

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void onTyped();
  void onPicked(int item);
  bool onKey(WPARAM key);
  void onMaybeLeft();
  void giveUp();
  void leave(Step step);
  void close();
  void tellEnd();

  GridRows& rows_;
  ValueListView& view_;
  Events events_;
  std::unique_ptr<CellEditor> editor_;
  int row_ = 0;
  std::string before_;    // the value when the edit began
  bool touched_ = false;  // the user typed something
  int untold_ = 0;        // the row of an edit whose end is told as soon as the mouse button is up
  Lifeline lifeline_;
};

}  // namespace mavCycEd::win32
