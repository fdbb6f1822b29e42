#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "kit/Lifeline.h"
#include "kit/ValueListRows.h"
#include "kit/ValueListScreen.h"

namespace mavCycEd::kit {

/// The edit of one value in its cell, from the opening of the editor to the edit's end. Every keystroke goes into the
/// rows at once, so that an edit may end in any way without losing what was typed.
///
/// An edit that its user gives up writes the value back that the cell had before, and tells nothing. An edit in which
/// nothing was typed ends without a word, too.
class CellEdit {
 public:
  struct Events {
    std::function<void(int row)> worksIn;  ///< the user goes on to work in a row, which is to be the current one
    std::function<void(int row)> typed;    ///< the user typed; the row's value has been written
    std::function<void(int row)> ended;    ///< the edit of a row has ended, or its value was picked from its list
  };

  CellEdit(ValueListRows& rows, Events events) : rows_(rows), events_(std::move(events)) {}

  /// nullptr: there is no screen; no edit opens.
  void setEditor(CellEditor* editor);

  bool isOpen() const { return row_ != 0; }
  /// The row being edited, 0 when none is.
  int row() const { return row_; }
  /// Whether the value being edited has a list, from which it can be picked.
  bool hasList() const { return hasList_ && isOpen(); }

  /// Opens the editor on a parameter row's value. An edit that is open must have ended before.
  void open(int row);
  /// Opens the list of the value being edited, if it has one.
  void openList();

  /// The user typed in the editor.
  void typed();
  /// The user picked an item of the row's list. Gives whether an edit ended by it in a row that is still there: its
  /// number, or 0 (also when the edit is gone).
  int picked(int item);
  /// The row being edited has this text from now on. The edit goes on where it was when all that happened is that
  /// characters had to go, otherwise behind the text.
  void replaceText(std::string_view text);
  /// The user gives the edit up.
  void giveUp();
  /// Ends the edit; what was typed stays. Also tells the end that waits for the mouse.
  void end();
  /// The keyboard focus has left the editor for another control. The press of a mouse button takes it away before it
  /// reaches its target, and a message box in between would swallow the release: the end is told when the button is up
  /// (mouseIsUp), or before the command that the click gives (end).
  void focusLeft(bool mouseIsDown);
  void mouseIsUp() { tellEnd(); }
  /// Closes the editor and tells nothing.
  void drop() { close(); }

  /// Rows have come, or are about to go, in front of others or themselves.
  void rowInserted(int row);
  void rowLeaves(int row);

 private:
  void close();
  void tellEnd();
  void tellUntoldTyping();

  ValueListRows& rows_;
  Events events_;
  CellEditor* editor_ = nullptr;
  int row_ = 0;
  bool hasList_ = false;
  bool touched_ = false;  // the user typed something
  std::string before_;    // the value when the edit began
  int untold_ = 0;        // the row of an edit whose end is still to be told
  Lifeline lifeline_;
};

}  // namespace mavCycEd::kit
