#include "kit/ValueList.h"

#include <optional>

#include "kit/Notify.h"

namespace mavCycEd::kit {
namespace {

class NoScreen : public ValueListScreen {
 public:
  void showCurrentRow() override {}
  void announceCurrentRow() override {}
  GridHit hitAt(Place) const override { return {.row = -1}; }
  Place middleOf(int) const override { return {}; }
  int pageRows() const override { return 1; }
  bool isUsable() const override { return false; }
  bool isFocused() const override { return false; }
  void takeFocus() override {}
  void passFocus(bool) override {}
  void copy(std::string_view) override {}
};

ValueListScreen* noScreen() {
  static NoScreen none;
  return &none;
}

}  // namespace

ValueList::ValueList()
    : edit_(rows_,
            {.worksIn = [this](int row) { chooseRow(row); },
             .typed = [this](int row) { tell(events_.SetEditText, ValueListRows::valueColumn, row, value(row)); },
             .ended =
                 [this](int row) {
                   tell(events_.EndOfEdit, ValueListRows::valueColumn, row, rows_.cell(ValueListRows::keyColumn, row),
                        value(row));
                 }}),
      screen_(noScreen()) {}

void ValueList::setScreen(ValueListScreen* screen, CellEditor* editor) {
  screen_ = screen != nullptr ? screen : noScreen();
  edit_.setEditor(editor);
}

void ValueList::setRow(int row) {
  rows_.setCurrentRow(row);
  screen_->showCurrentRow();
}

void ValueList::focusValue(int row) {
  if (!rows_.isParameterRow(row)) return;
  edit_.drop();
  setRow(row);
  openEditor();
}

void ValueList::insertRow(std::string_view key, std::string_view value, bool append) {
  edit_.rowInserted(rows_.insert(key, value, append));
  screen_->showCurrentRow();
}

void ValueList::deleteRow(int row) {
  if (!rows_.isParameterRow(row)) return;
  edit_.rowLeaves(row);
  rows_.remove(row);
  screen_->showCurrentRow();
}

void ValueList::setValue(int column, int row, std::string_view text) {
  if (!rows_.setCell(column, row, text)) return;
  if (column != ValueListRows::valueColumn || row != edit_.row()) return;
  edit_.replaceText(text);
  tell(events_.SetEditText, ValueListRows::valueColumn, row, value(row));
}

void ValueList::chooseRow(int row) {
  if (!rows_.isParameterRow(row)) return;
  const bool isAwaited = firstRowTimer_ != nullptr && firstRowTimer_->isEnabled();
  if (row != rows_.currentRow() || isAwaited) makeCurrent(row);
}

void ValueList::makeCurrent(int row) {
  rows_.setCurrentRow(row);
  screen_->showCurrentRow();
  screen_->announceCurrentRow();
  if (firstRowTimer_ != nullptr) firstRowTimer_->setEnabled(false);
  tell(events_.SelectionChange);
}

void ValueList::editCurrentRow() {
  const Lifeline::Watch alive = lifeline_.watch();
  edit_.end();
  if (!alive) return;
  chooseRow(rows_.currentRow());
  if (alive) openEditor();
}

void ValueList::openEditor() {
  screen_->showCurrentRow();
  if (rows_.currentRow() == 0) {
    screen_->takeFocus();
  } else {
    edit_.open(rows_.currentRow());
  }
}

// A press on the titles goes to no row, and the divider between them may be dragged while a value is being edited.
void ValueList::pressMouse(platform::MouseButton button, Place place) {
  const Lifeline::Watch alive = lifeline_.watch();
  listWanted_ = false;
  if (screen_->hitAt(place).row == 0) {
    tellPress(button, place);
    return;
  }
  edit_.end();
  if (!alive) return;
  chooseRow(screen_->hitAt(place).row);
  if (!alive) return;
  tellPress(button, place);
  if (!alive || button != platform::MouseButton::Primary || !screen_->isUsable()) return;
  // What was told may have changed the rows.
  const GridHit hit = screen_->hitAt(place);
  if (!hit.onValue || !rows_.isParameterRow(hit.row) || hit.row != rows_.currentRow()) return;
  editCurrentRow();
  if (alive) listWanted_ = hit.onArrow;
}

void ValueList::pressMouseOnEditor(platform::MouseButton button, Place place) {
  const Lifeline::Watch alive = lifeline_.watch();
  chooseRow(edit_.row());
  if (alive) tellPress(button, place);
}

void ValueList::tellPress(platform::MouseButton button, Place place) {
  const GridHit hit = screen_->hitAt(place);
  tell(events_.MouseDown, button, hit.x, hit.y);
}

void ValueList::moveMouse(Place place) {
  const GridHit hit = screen_->hitAt(place);
  tell(events_.MouseMove, hit.x, hit.y);
}

void ValueList::releaseMouse() {
  if (std::exchange(listWanted_, false)) edit_.openList();
}

void ValueList::askForMenu(Place place) {
  const Lifeline::Watch alive = lifeline_.watch();
  edit_.end();
  if (!alive) return;
  const int row = screen_->hitAt(place).row;
  chooseRow(rows_.isParameterRow(row) ? row : rows_.currentRow());
  if (alive) tellMenu(place);
}

// No press comes before such a request that would tell of the row: it is told in any case.
void ValueList::askForMenuByKey() {
  const Lifeline::Watch alive = lifeline_.watch();
  const int edited = edit_.row();
  edit_.end();
  if (!alive) return;
  const int row = edited != 0 ? edited : rows_.currentRow();
  if (!rows_.isParameterRow(row)) return;
  makeCurrent(row);
  if (alive) tellMenu(screen_->middleOf(row));
}

void ValueList::tellMenu(Place place) {
  menuPlace_ = place;
  const GridHit hit = screen_->hitAt(place);
  tell(events_.ContextPopup, hit.x, hit.y);
}

ValueList::KeyAnswer ValueList::pressKey(const KeyPress& press) {
  const Lifeline::Watch alive = lifeline_.watch();
  const GridAction action = actionOf(press, enterOpens_);
  if (action == GridAction::AskForMenu) {
    askForMenuByKey();
    return KeyAnswer::Taken;
  }
  if (edit_.isOpen()) return KeyAnswer::NotTaken;  // what the editor does not want is not for the rows either
  const int row = rows_.currentRow();
  switch (action) {
    case GridAction::Copy: screen_->copy(value(row)); return KeyAnswer::Taken;
    case GridAction::Move: chooseRow(rowBy(press.key, row, rows_.rowCount(), screen_->pageRows())); break;
    case GridAction::OpenEditor: editCurrentRow(); break;
    case GridAction::OpenList:
      editCurrentRow();
      if (alive) edit_.openList();
      break;
    case GridAction::BeginEdit:
      if (row == 0) return KeyAnswer::NotTaken;
      editCurrentRow();
      return alive && edit_.isOpen() ? KeyAnswer::IntoEditor : KeyAnswer::Taken;
    default: return KeyAnswer::NotTaken;
  }
  return KeyAnswer::Taken;
}

bool ValueList::wantsKey(const KeyPress& press) const {
  switch (actionOf(press, enterOpens_)) {
    case GridAction::AskForMenu:
    case GridAction::OpenEditor:
    case GridAction::OpenList:
    case GridAction::BeginEdit: return true;
    default: return false;
  }
}

bool ValueList::wantsKeyInEditor(const KeyPress& press) const {
  return press.key == Key::Escape || stepOf(press).has_value() || (edit_.hasList() && isListKey(press));
}

bool ValueList::pressKeyInEditor(const KeyPress& press) {
  if (!edit_.isOpen() || !wantsKeyInEditor(press)) return false;
  if (press.key == Key::Escape) {
    edit_.giveUp();
  } else if (const std::optional<Step> step = stepOf(press)) {
    const Lifeline::Watch alive = lifeline_.watch();
    const int from = edit_.row();
    edit_.end();
    if (alive) goOn(from, *step);
  } else {
    edit_.openList();
  }
  return true;
}

void ValueList::pickedInEditor(int item) {
  const Lifeline::Watch alive = lifeline_.watch();
  const int row = edit_.picked(item);
  // The user is still in this cell, unless the answer to the pick led elsewhere.
  if (alive && row != 0 && screen_->isFocused() && rows_.currentRow() == row) openEditor();
}

// Where an ended edit leads.
void ValueList::goOn(int row, Step step) {
  const int target = rowBehind(step, row, rows_.rowCount(), screen_->pageRows());
  if (rows_.isParameterRow(target)) {
    const Lifeline::Watch alive = lifeline_.watch();
    chooseRow(target);
    if (alive) editCurrentRow();
  } else if (step == Step::NextCell || step == Step::PreviousCell) {
    screen_->passFocus(step == Step::NextCell);
  } else if (step != Step::NextLine) {
    editCurrentRow();  // at the first or last row an arrow leads nowhere
  }
}

}  // namespace mavCycEd::kit
