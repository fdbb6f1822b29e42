#include "win32/Win32CellEditor.h"

#include <utility>

#include "win32/GridKeys.h"
#include "win32/Module.h"
#include "win32/ValueListView.h"

namespace mavCycEd::win32 {
namespace {

constexpr UINT_PTR mouseWatchTimer = 1;

bool isMouseDown() { return isDown(VK_LBUTTON) || isDown(VK_RBUTTON); }

}  // namespace

Win32CellEditor::Win32CellEditor(std::shared_ptr<kit::ValueList> list, ValueListView& view)
    : list_(std::move(list)), view_(view) {}

bool Win32CellEditor::openEditor(int row) {
  if (view_.handle() == nullptr) return false;
  const ThemedScope themed;
  editor_ = std::make_unique<win32::CellEditor>(
      view_.handle(), list_->rows().entry(row)->pickList, view_.cellFont(), view_.dpi(),
      win32::CellEditor::Events{.typed =
                                    [this] {
                                      if (takeUntoldTyping()) std::shared_ptr(list_)->typedInEditor();
                                    },
                                .picked = [list = list_](int item) { list->pickedInEditor(item); },
                                .key = [this](WPARAM key) { return onKey(key); },
                                .left = [this] { checkFocus(); }});
  place(row);  // an editor without a width would scroll its text away
  editor_->setText(list_->rows().cell(kit::ValueListRows::valueColumn, row));
  editor_->setFocus();
  return true;
}

void Win32CellEditor::closeEditor() {
  const std::unique_ptr<win32::CellEditor> closing = std::move(editor_);
  if (closing && closing->hasFocus()) SetFocus(view_.handle());
  view_.repaint();
}

kit::TypedLine Win32CellEditor::line() const { return editor_ ? editor_->typedLine() : kit::TypedLine(); }

void Win32CellEditor::showLine(const kit::TypedLine& line) {
  if (editor_) editor_->show(line);
}

// A character that comes in two halves is typed when the second one has come.
bool Win32CellEditor::takeUntoldTyping() {
  if (!editor_ || !editor_->hasUntoldTyping() || editor_->isHalfTyped()) return false;
  editor_->typingIsTold();
  return true;
}

void Win32CellEditor::openList() {
  if (editor_) editor_->showList();
}

void Win32CellEditor::watchMouse(bool watch) {
  constexpr UINT lookAgainMilliseconds = 20;
  if (watch) {
    SetTimer(MessageWindow::handle(), mouseWatchTimer, lookAgainMilliseconds, nullptr);
  } else {
    KillTimer(MessageWindow::handle(), mouseWatchTimer);
  }
}

void Win32CellEditor::follow() {
  if (editor_ && list_->edit().isOpen()) place(list_->edit().row());
}

void Win32CellEditor::place(int row) {
  RECT cell = view_.geometry().cell(kit::ValueListRows::valueColumn, row);
  --cell.bottom;  // the line below the row stays
  editor_->place(cell);
}

void Win32CellEditor::checkFocus() {
  if (!editor_ || editor_->hasFocus()) return;
  const HWND focus = GetFocus();
  // A menu, or another window in front, does not count.
  if (focus == nullptr || GetAncestor(focus, GA_ROOT) != GetAncestor(view_.handle(), GA_ROOT)) return;
  std::shared_ptr(list_)->focusLeftEditor(isMouseDown());
}

LRESULT Win32CellEditor::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_TIMER) return MessageWindow::onMessage(message, wParam, lParam);
  if (!isMouseDown()) std::shared_ptr(list_)->mouseIsUp();
  return 0;
}

bool Win32CellEditor::onKey(WPARAM key) {
  if (!editor_ || editor_->isListOpen()) return false;  // the keys of an open list are the list's
  return std::shared_ptr(list_)->pressKeyInEditor(keyPressOf(key));
}

}  // namespace mavCycEd::win32
