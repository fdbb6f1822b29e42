#include "qt/QtCellEditor.h"

#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <initializer_list>
#include <utility>

#include "qt/CellEditors.h"
#include "qt/FocusRules.h"
#include "qt/GridKeys.h"
#include "qt/LineEdits.h"
#include "qt/ValueListView.h"

namespace mavCycEd::qt {

QtCellEditor::QtCellEditor(std::shared_ptr<kit::ValueList> list, ValueListView& view)
    : QObject(&view), list_(std::move(list)), view_(view) {
  constexpr int lookAgainMilliseconds = 20;
  mouseWatch_.setInterval(lookAgainMilliseconds);
  connect(&mouseWatch_, &QTimer::timeout, this, [list = list_] {
    const bool busy = QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget() != nullptr;
    if (!busy) list->mouseIsUp();
  });
}

bool QtCellEditor::openEditor(int row) {
  editor_ = view_.makeEditor(row);
  if (!editor_) return false;
  view_.viewport()->update();
  QLineEdit& line = lineOf(*editor_);
  for (QWidget* const part : std::initializer_list<QWidget*>{editor_, &line}) {
    part->setMouseTracking(true);
    part->installEventFilter(this);
  }
  line.selectAll();
  connect(&line, &QLineEdit::textEdited, this, &QtCellEditor::onTyped);
  connect(editor_, &QObject::destroyed, this, [list = list_] { list->editorIsGone(); });
  if (auto* const combo = qobject_cast<QComboBox*>(editor_)) {
    connect(combo, &QComboBox::textActivated, this,
            [list = list_, combo] { list->pickedInEditor(combo->currentIndex()); });
  }
  return true;
}

void QtCellEditor::closeEditor() {
  QWidget* const editor = editor_;
  editor_.clear();
  if (editor != nullptr) {
    editor->removeEventFilter(this);
    lineOf(*editor).removeEventFilter(this);
    lineOf(*editor).disconnect(this);
    editor->disconnect(this);
    view_.removeEditor(editor);
  }
  view_.markCurrentRow();
  view_.viewport()->update();  // where the focus is shows in the whole row, not in the edited cell only
}

kit::TypedLine QtCellEditor::line() const { return editor_ ? lineIn(lineOf(*editor_)) : kit::TypedLine(); }

void QtCellEditor::showLine(const kit::TypedLine& line) {
  if (editor_) writeLine(lineOf(*editor_), line);
}

void QtCellEditor::openList() {
  if (auto* const combo = qobject_cast<QComboBox*>(editor_)) combo->showPopup();
}

void QtCellEditor::watchMouse(bool watch) {
  if (watch) {
    mouseWatch_.start();
  } else {
    mouseWatch_.stop();
  }
}

void QtCellEditor::forward(QEvent& event) {
  if (editor_) QCoreApplication::sendEvent(editor_, &event);
}

void QtCellEditor::onTyped() {
  const QPointer<QtCellEditor> self(this);
  ++telling_;
  std::shared_ptr(list_)->typedInEditor();
  if (self) endTelling();
}

// From here the way leads back into the editors, so they may go when the event that they answer is over.
void QtCellEditor::endTelling() {
  if (--telling_ > 0) return;
  for (const QPointer<QWidget>& editor : std::exchange(closed_, {})) {
    if (editor) editor->deleteLater();
  }
}

void QtCellEditor::release(QWidget& editor) {
  if (telling_ > 0) {
    closed_.emplace_back(&editor);
  } else {
    editor.deleteLater();
  }
}

bool QtCellEditor::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: return onMouse(static_cast<QWidget&>(*watched), *event);
    default: break;
  }
  if (watched != editor_) return QObject::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // Keys of the edit are ours, also where the host has given them a meaning of its own.
      if (!list_->wantsKeyInEditor(keyPressOf(static_cast<const QKeyEvent&>(*event)))) return false;
      event->accept();
      return true;
    case QEvent::KeyPress:
      return std::shared_ptr(list_)->pressKeyInEditor(keyPressOf(static_cast<const QKeyEvent&>(*event)));
    case QEvent::FocusOut: return onFocusOut(static_cast<const QFocusEvent&>(*event));
    default: return false;
  }
}

// True when the editor is gone and has nothing more to do with the event.
bool QtCellEditor::onFocusOut(const QFocusEvent& event) {
  if (!leavesControl(*editor_, event)) return false;
  const QPointer<QWidget> editor(editor_);
  std::shared_ptr(list_)->focusLeftEditor(QGuiApplication::mouseButtons() != Qt::NoButton);
  return editor.isNull();
}

// The grid hears of the mouse over the editor, which stands where the cell is. True when the editor has nothing more to
// do with it.
bool QtCellEditor::onMouse(QWidget& over, const QEvent& event) {
  if (!editor_) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(event);
  const QPoint place = over.mapTo(view_.viewport(), mouse.position().toPoint());
  const bool passedOn = &over != &lineOf(*editor_);  // by a combo box, to the grid under it
  const QPointer<QtCellEditor> self(this);
  const QPointer<QWidget> editor(editor_);
  const auto list = list_;
  if (event.type() == QEvent::MouseMove) {
    list->moveMouse(placeOf(place));
    return passedOn || editor.isNull();
  }
  list->pressMouseOnEditor(named(mouse.button()), placeOf(place));
  return !self || editor.isNull() || editor_ != editor;
}

}  // namespace mavCycEd::qt
