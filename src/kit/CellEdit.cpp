#include "kit/CellEdit.h"

#include <cstddef>

#include "kit/Notify.h"

namespace mavCycEd::kit {

void CellEdit::setEditor(CellEditor* editor) {
  row_ = 0;
  editor_ = editor;
}

void CellEdit::open(int row) {
  const ValueListRows::Entry* const entry = rows_.entry(row);
  if (entry == nullptr || editor_ == nullptr) return;
  before_ = entry->value;
  hasList_ = !entry->pickList.empty();
  touched_ = false;
  row_ = editor_->openEditor(row) ? row : 0;
}

void CellEdit::openList() {
  if (hasList()) editor_->openList();
}

void CellEdit::typed() {
  if (!isOpen()) return;
  touched_ = true;
  const Lifeline::Watch alive = lifeline_.watch();
  tell(events_.worksIn, row_);
  if (!alive || !isOpen()) return;
  const TypedLine typed = editor_->line();
  const TypedLine line = onOneLine(typed);
  if (line != typed) editor_->showLine(line);
  const int row = row_;
  rows_.setCell(ValueListRows::valueColumn, row, line.text);
  tell(events_.typed, row);
}

int CellEdit::picked(int item) {
  if (!isOpen()) return 0;
  const Lifeline::Watch alive = lifeline_.watch();
  tell(events_.worksIn, row_);
  if (!alive || !isOpen()) return 0;
  const int row = row_;
  const auto& items = rows_.entry(row)->pickList;
  if (item < 0 || static_cast<std::size_t>(item) >= items.size()) return 0;
  const std::string value = items[static_cast<std::size_t>(item)];
  close();
  rows_.setCell(ValueListRows::valueColumn, row, value);
  tell(events_.ended, row);
  return alive ? row : 0;
}

void CellEdit::replaceText(std::string_view text) {
  if (isOpen()) editor_->showLine(rewritten(editor_->line(), text));
}

void CellEdit::giveUp() {
  if (!isOpen()) return;
  const int row = row_;
  close();
  if (touched_) rows_.setCell(ValueListRows::valueColumn, row, before_);
}

void CellEdit::end() {
  const Lifeline::Watch alive = lifeline_.watch();
  tellUntoldTyping();
  if (!alive) return;
  if (isOpen()) {
    if (touched_) untold_ = row_;
    close();
  }
  tellEnd();
}

void CellEdit::focusLeft(bool mouseIsDown) {
  if (!isOpen()) return;
  if (!mouseIsDown) {
    end();
    return;
  }
  const Lifeline::Watch alive = lifeline_.watch();
  tellUntoldTyping();
  if (!alive || !isOpen()) return;
  if (touched_) untold_ = row_;
  close();
  editor_->watchMouse(true);
}

void CellEdit::tellUntoldTyping() {
  if (isOpen() && editor_->takeUntoldTyping()) typed();
}

void CellEdit::tellEnd() {
  if (editor_ != nullptr) editor_->watchMouse(false);
  if (untold_ != 0) tell(events_.ended, std::exchange(untold_, 0));
}

void CellEdit::close() {
  if (!isOpen()) return;
  row_ = 0;
  editor_->closeEditor();
}

void CellEdit::rowInserted(int row) {
  if (row_ >= row) ++row_;
  if (untold_ >= row) ++untold_;
}

void CellEdit::rowLeaves(int row) {
  if (row == row_) close();
  if (row == untold_) untold_ = 0;
  if (row_ > row) --row_;
  if (untold_ > row) --untold_;
}

}  // namespace mavCycEd::kit
