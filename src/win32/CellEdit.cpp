#include "win32/CellEdit.h"

#include <optional>

#include "win32/Module.h"
#include "win32/ValueListView.h"

namespace mavCycEd::win32 {
namespace {

constexpr UINT_PTR mouseIsUpTimer = 1;

bool isDown(int key) { return GetKeyState(key) < 0; }

// Where a key leads that ends an edit.
std::optional<CellEdit::Step> stepOf(WPARAM key) {
  using Step = CellEdit::Step;
  if (isDown(VK_CONTROL) || isDown(VK_MENU)) return std::nullopt;
  switch (key) {
    case VK_TAB: return isDown(VK_SHIFT) ? Step::PreviousCell : Step::NextCell;
    case VK_RETURN: return Step::NextLine;
    case VK_UP: return Step::Up;
    case VK_DOWN: return Step::Down;
    case VK_PRIOR: return Step::PageUp;
    case VK_NEXT: return Step::PageDown;
    default: return std::nullopt;
  }
}

}  // namespace

void CellEdit::open(int row) {
  close();
  row_ = row;
  before_ = rows_.rows.cell(GridRows::valueColumn, row);
  touched_ = false;
  const ValueListRows::Entry* const entry = rows_.rows.entry(row);
  if (entry == nullptr || view_.handle() == nullptr) return;
  const ThemedScope themed;
  editor_ = std::make_unique<CellEditor>(view_.handle(), entry->pickList, view_.cellFont(), view_.dpi(),
                                         CellEditor::Events{.typed = [this] { onTyped(); },
                                                            .picked = [this](int item) { onPicked(item); },
                                                            .key = [this](WPARAM key) { return onKey(key); },
                                                            .left = [this] { onMaybeLeft(); }});
  follow();  // an editor without a width would scroll its text away
  editor_->setText(before_);
  editor_->setFocus();
}

void CellEdit::follow() {
  if (!isOpen()) return;
  RECT cell = view_.geometry().cell(GridRows::valueColumn, row_);
  --cell.bottom;  // the line below the row stays
  editor_->place(cell);
}

void CellEdit::showList() {
  if (isOpen()) editor_->showList();
}

void CellEdit::replaceText(std::string_view text) {
  if (isOpen()) editor_->setText(text);
}

void CellEdit::onTyped() {
  if (!isOpen() || editor_->isHalfTyped()) return;
  editor_->typingIsTold();
  touched_ = true;
  const int typedRow = row_;
  const std::string text = editor_->text();
  const Lifeline::Watch alive = lifeline_.watch();
  view_.chooseRow(typedRow);
  if (!alive || !isOpen()) return;
  rows_.rows.setCell(GridRows::valueColumn, row_, text);
  tell(events_.typed, row_);
}

void CellEdit::onPicked(int item) {
  if (!isOpen()) return;
  const Lifeline::Watch alive = lifeline_.watch();
  view_.chooseRow(row_);
  if (!alive || !isOpen()) return;
  const int pickedRow = row_;
  const ValueListRows::Entry* const entry = rows_.rows.entry(pickedRow);
  if (entry == nullptr || item < 0 || static_cast<std::size_t>(item) >= entry->pickList.size()) return;
  const std::string value = entry->pickList[static_cast<std::size_t>(item)];
  close();
  rows_.rows.setCell(GridRows::valueColumn, pickedRow, value);
  view_.repaint();
  tell(events_.picked, pickedRow);
}

void CellEdit::end() {
  const Lifeline::Watch alive = lifeline_.watch();
  if (isOpen() && editor_->hasUntoldTyping()) onTyped();
  if (!alive) return;
  if (isOpen()) {
    if (touched_) untold_ = row_;
    close();
  }
  tellEnd();
}

void CellEdit::tellEnd() {
  KillTimer(MessageWindow::handle(), mouseIsUpTimer);
  if (untold_ == 0) return;
  tell(events_.ended, std::exchange(untold_, 0));
}

// The press of a mouse button takes the focus away before it reaches its target. A message box in between would swallow
// the release, so the edit's end is told when the button is up, or before the command that the click gives.
void CellEdit::onMaybeLeft() {
  if (!isOpen() || editor_->hasFocus()) return;
  const HWND focus = GetFocus();
  // A menu, or another window in front, does not count.
  if (focus == nullptr || GetAncestor(focus, GA_ROOT) != GetAncestor(view_.handle(), GA_ROOT)) return;
  if (!isDown(VK_LBUTTON) && !isDown(VK_RBUTTON)) {
    end();
    return;
  }
  const Lifeline::Watch alive = lifeline_.watch();
  if (editor_->hasUntoldTyping()) onTyped();
  if (!alive || !isOpen()) return;
  if (touched_) untold_ = row_;
  close();
  constexpr UINT lookAgainMilliseconds = 20;
  SetTimer(MessageWindow::handle(), mouseIsUpTimer, lookAgainMilliseconds, nullptr);
}

LRESULT CellEdit::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_TIMER) return MessageWindow::onMessage(message, wParam, lParam);
  if (!isDown(VK_LBUTTON) && !isDown(VK_RBUTTON)) tellEnd();
  return 0;
}

void CellEdit::giveUp() {
  const int row = this->row();
  const bool typed = touched_ || editor_->hasUntoldTyping();
  close();
  if (typed) rows_.rows.setCell(GridRows::valueColumn, row, before_);
  view_.repaint();
}

void CellEdit::close() {
  if (!isOpen()) return;
  const bool hadFocus = editor_->hasFocus();
  const std::unique_ptr<CellEditor> closing = std::move(editor_);
  if (hadFocus) SetFocus(view_.handle());
  view_.showCurrentRow();
}

void CellEdit::leave(Step step) {
  const int from = row_;
  const Lifeline::Watch alive = lifeline_.watch();
  end();
  if (alive) tell(events_.left, from, step);
}

bool CellEdit::onKey(WPARAM key) {
  if (!isOpen() || editor_->isListOpen()) return false;  // the keys of an open list are the list's
  if (key == VK_ESCAPE) {
    giveUp();
    return true;
  }
  const bool isListKey = key == VK_F4 || (isDown(VK_MENU) && (key == VK_DOWN || key == VK_UP));
  if (isListKey) {
    showList();
    return editor_->hasList();
  }
  const std::optional<Step> step = stepOf(key);
  if (!step) return false;
  leave(*step);
  return true;
}

void CellEdit::rowInserted(int row) {
  if (row_ >= row) ++row_;
  if (untold_ >= row) ++untold_;
}

void CellEdit::rowRemoved(int row) {
  if (row == row_) drop();
  if (row == untold_) untold_ = 0;
  if (row_ > row) --row_;
  if (untold_ > row) --untold_;
}

}  // namespace mavCycEd::win32
