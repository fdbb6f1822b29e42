#pragma once

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <string>
#include <vector>

namespace mavCycEd::qt {

class ValueListModel;
class ValueListView;

/// The edit of one value in its cell, from the opening of the editor to the edit's end. Every keystroke goes into the
/// rows at once, so that an edit may end in any way without losing what was typed.
class CellEdit : public QObject {
  Q_OBJECT

 public:
  /// Where the keys lead that end an edit.
  enum class Step { NextCell, PreviousCell, NextLine, Up, Down, PageUp, PageDown };

  CellEdit(ValueListModel& model, ValueListView& view);

  bool isOpen() const { return !editor_.isNull(); }
  /// The row being edited, 0 when none is.
  int row() const;

  /// Opens the editor on a parameter row's value, all of it selected.
  void open(int row);
  /// Opens the list of the row being edited, if it has one.
  void showList();
  /// Hands an event to the open editor: the key that began the edit.
  void forward(QEvent& event);

  /// The row being edited shows this text from now on; the edit goes on, where some of the typed characters had to go
  /// at the place where they were typed, otherwise behind the text.
  void replaceText(std::string_view text);

  /// Ends the edit; what was typed stays. Only an edit in which something was typed tells of its end.
  void end();
  /// Closes the editor and tells nothing: its row goes.
  void drop();
  /// Destroys an editor that has been closed, but not while it is telling what is typed: a message box that this leads
  /// to has an event loop of its own, in which the editor would go too early.
  void release(QWidget& editor);

 signals:
  /// The user typed; the row's value has been written.
  void typed(int row);
  /// The user picked the value from the row's list; it has been written.
  void picked(int row);
  /// The edit of a row has ended.
  void ended(int row);
  /// A key has ended the edit of `row` and leads elsewhere.
  void left(int row, mavCycEd::qt::CellEdit::Step step);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool onKeyPress(const QKeyEvent& key);
  bool onMouse(QWidget& over, QEvent& event);
  bool isOurs(const QKeyEvent& key) const;
  bool hasList() const;
  void onTyped();
  void tellTyped();
  void endTelling();
  void onPicked(int item);
  void giveUp();
  void leave(Step step);
  void close();
  void endBehindMouse();
  void tellEnd();

  ValueListModel& model_;
  ValueListView& view_;
  QPersistentModelIndex index_;
  QPointer<QWidget> editor_;
  std::string before_;            // the value when the edit began
  bool touched_ = false;          // the user typed something
  QPersistentModelIndex untold_;  // an edit whose end is told as soon as the mouse button is up
  QTimer mouseIsUp_;
  int telling_ = 0;                        // what was typed is being told
  std::vector<QPointer<QWidget>> closed_;  // editors that were closed meanwhile
};

}  // namespace mavCycEd::qt
