#include "qt/CellEdit.h"

#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <initializer_list>
#include <optional>
#include <utility>

#include "qt/CellEditors.h"
#include "qt/FocusRules.h"
#include "qt/GridKeys.h"
#include "qt/LineEdits.h"
#include "qt/Text.h"
#include "qt/ValueListModel.h"
#include "qt/ValueListView.h"

namespace mavCycEd::qt {
namespace {

// Where a key leads that ends an edit.
std::optional<CellEdit::Step> stepOf(const QKeyEvent& key) {
  using Step = CellEdit::Step;
  if ((key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) return std::nullopt;
  switch (key.key()) {
    case Qt::Key_Tab: return Step::NextCell;
    case Qt::Key_Backtab: return Step::PreviousCell;
    case Qt::Key_Return:
    case Qt::Key_Enter: return Step::NextLine;
    case Qt::Key_Up: return Step::Up;
    case Qt::Key_Down: return Step::Down;
    case Qt::Key_PageUp: return Step::PageUp;
    case Qt::Key_PageDown: return Step::PageDown;
    default: return std::nullopt;
  }
}

}  // namespace

CellEdit::CellEdit(ValueListModel& model, ValueListView& view) : QObject(&view), model_(model), view_(view) {
  constexpr int lookAgainMilliseconds = 20;
  mouseIsUp_.setInterval(lookAgainMilliseconds);
  connect(&mouseIsUp_, &QTimer::timeout, this, [this] {
    const bool busy = QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget() != nullptr;
    if (!busy) tellEnd();
  });
}

int CellEdit::row() const { return isOpen() ? ValueListModel::rowOf(index_) : 0; }

void CellEdit::open(int row) {
  index_ = model_.cellIndex(ValueListModel::valueColumn, row);
  before_ = model_.rows().cell(ValueListModel::valueColumn, row);
  touched_ = false;
  view_.edit(index_);
  editor_ = view_.indexWidget(index_);
  if (!editor_) return;
  view_.viewport()->update();
  QLineEdit& line = lineOf(*editor_);
  for (QWidget* const part : std::initializer_list<QWidget*>{editor_, &line}) {
    part->setMouseTracking(true);
    part->installEventFilter(this);
  }
  line.selectAll();
  connect(&line, &QLineEdit::textEdited, this, &CellEdit::onTyped);
  if (auto* const combo = qobject_cast<QComboBox*>(editor_)) {
    connect(combo, &QComboBox::textActivated, this, [this, combo] { onPicked(combo->currentIndex()); });
  }
}

bool CellEdit::hasList() const { return qobject_cast<QComboBox*>(editor_) != nullptr; }

void CellEdit::showList() {
  if (auto* const combo = qobject_cast<QComboBox*>(editor_)) combo->showPopup();
}

void CellEdit::forward(QEvent& event) {
  if (isOpen()) QCoreApplication::sendEvent(editor_, &event);
}

void CellEdit::replaceText(std::string_view text) {
  if (isOpen()) writeBehindTyping(lineOf(*editor_), toQt(text));
}

void CellEdit::onTyped() {
  if (!isOpen()) return;
  touched_ = true;
  const QPointer<CellEdit> self(this);
  ++telling_;
  tellTyped();
  if (self) endTelling();
}

void CellEdit::tellTyped() {
  const QPointer<CellEdit> self(this);
  view_.chooseRow(row());
  if (!self || !isOpen()) return;
  const QString line = keepOnOneLine(lineOf(*editor_));
  const int typedRow = row();
  model_.setCell(ValueListModel::valueColumn, typedRow, fromQt(line));
  emit typed(typedRow);
}

// From here the way leads back into the editors, so they may go when the event that they answer is over.
void CellEdit::endTelling() {
  if (--telling_ > 0) return;
  for (const QPointer<QWidget>& editor : std::exchange(closed_, {})) {
    if (editor) editor->deleteLater();
  }
}

void CellEdit::release(QWidget& editor) {
  if (telling_ > 0) {
    closed_.emplace_back(&editor);
  } else {
    editor.deleteLater();
  }
}

void CellEdit::onPicked(int item) {
  if (!isOpen()) return;
  const QPointer<CellEdit> self(this);
  view_.chooseRow(row());
  if (!self || !isOpen()) return;
  const int pickedRow = row();
  const auto& items = model_.rows().entry(pickedRow)->pickList;
  if (item < 0 || static_cast<std::size_t>(item) >= items.size()) return;
  const std::string value = items[static_cast<std::size_t>(item)];
  close();
  model_.setCell(ValueListModel::valueColumn, pickedRow, value);
  emit picked(pickedRow);
  // The user is still in this cell, unless the answer to the pick led elsewhere.
  if (self && view_.hasFocus() && model_.rows().currentRow() == pickedRow) view_.openEditor();
}

void CellEdit::end() {
  if (isOpen()) {
    if (touched_) untold_ = index_;
    close();
  }
  tellEnd();
}

void CellEdit::tellEnd() {
  mouseIsUp_.stop();
  if (!untold_.isValid()) return;
  const int row = ValueListModel::rowOf(untold_);
  untold_ = QPersistentModelIndex();
  emit ended(row);
}

// The press of a mouse button takes the focus away before it reaches its target. A message box in between would swallow
// the release, so the edit's end is told when the button is up, or before the command that the click gives.
void CellEdit::endBehindMouse() {
  if (touched_) untold_ = index_;
  close();
  mouseIsUp_.start();
}

void CellEdit::drop() { close(); }

void CellEdit::giveUp() {
  const int row = this->row();
  close();
  if (touched_) model_.setCell(ValueListModel::valueColumn, row, before_);
}

void CellEdit::close() {
  if (!isOpen()) return;
  QWidget* const editor = editor_;
  editor_.clear();
  editor->removeEventFilter(this);
  lineOf(*editor).removeEventFilter(this);
  lineOf(*editor).disconnect(this);
  editor->disconnect(this);
  view_.removeEditor(editor);
  view_.markCurrentRow();
  view_.viewport()->update();  // where the focus is shows in the whole row, not in the edited cell only
}

void CellEdit::leave(Step step) {
  const int from = row();
  const QPointer<CellEdit> self(this);
  end();
  if (self) emit left(from, step);
}

bool CellEdit::eventFilter(QObject* watched, QEvent* event) {
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
      if (!isOurs(static_cast<const QKeyEvent&>(*event))) return false;
      event->accept();
      return true;
    case QEvent::KeyPress: return onKeyPress(static_cast<const QKeyEvent&>(*event));
    case QEvent::FocusOut: {
      if (!leavesControl(*editor_, static_cast<const QFocusEvent&>(*event))) return false;
      const QPointer<QObject> gone(watched);
      if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        endBehindMouse();
      } else {
        end();
      }
      return gone.isNull();
    }
    default: return false;
  }
}

// The grid hears of the mouse over the editor, which stands where the cell is. True when the editor has nothing more to
// do with it.
bool CellEdit::onMouse(QWidget& over, QEvent& event) {
  if (!isOpen()) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(event);
  const QPoint place = over.mapTo(view_.viewport(), mouse.position().toPoint());
  const QPointer<CellEdit> self(this);
  const QPointer<QWidget> editor(editor_);
  if (event.type() == QEvent::MouseMove) {
    const bool passedOn = &over != &lineOf(*editor);  // by a combo box, to the grid under it
    view_.tellMove(place);
    return passedOn || editor.isNull();
  }
  view_.chooseRow(row());
  if (self) view_.tellPress(mouse.button(), place);
  return !self || editor.isNull() || editor_ != editor;
}

bool CellEdit::isOurs(const QKeyEvent& key) const {
  return key.key() == Qt::Key_Escape || stepOf(key).has_value() || (hasList() && isListKey(key));
}

bool CellEdit::onKeyPress(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Escape) {
    giveUp();
    return true;
  }
  if (hasList() && isListKey(key)) {
    showList();
    return true;
  }
  const std::optional<Step> step = stepOf(key);
  if (!step) return false;
  leave(*step);
  return true;
}

}  // namespace mavCycEd::qt
