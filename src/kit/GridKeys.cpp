#include "kit/GridKeys.h"

#include <algorithm>

namespace mavCycEd::kit {
namespace {

bool isPlain(const KeyPress& press) { return !press.shift && !press.control && !press.alt; }

bool isCommand(const KeyPress& press) {
  const bool isAltGr = press.control && press.alt;
  return (press.control || press.alt) && !isAltGr;
}

}  // namespace

bool isListKey(const KeyPress& press) {
  const bool isArrow = press.key == Key::Up || press.key == Key::Down;
  if (isArrow) return press.alt && !press.shift && !press.control;
  return press.key == Key::F4 && isPlain(press);
}

GridAction actionOf(const KeyPress& press, bool enterOpens) {
  if (isListKey(press)) return GridAction::OpenList;
  switch (press.key) {
    case Key::F10: return press.shift && !press.control && !press.alt ? GridAction::AskForMenu : GridAction::None;
    case Key::Copy: return GridAction::Copy;
    case Key::Paste: return GridAction::BeginEdit;
    case Key::F2: return isPlain(press) ? GridAction::OpenEditor : GridAction::None;
    case Key::Enter: return isPlain(press) && enterOpens ? GridAction::OpenEditor : GridAction::None;
    case Key::Up:
    case Key::Down:
    case Key::PageUp:
    case Key::PageDown:
    case Key::Home:
    case Key::End: return isPlain(press) ? GridAction::Move : GridAction::None;
    case Key::Character:
    case Key::Delete:
    case Key::Backspace: return isCommand(press) ? GridAction::None : GridAction::BeginEdit;
    default: return GridAction::None;
  }
}

int rowBy(Key key, int currentRow, int rowCount, int pageRows) {
  switch (key) {
    case Key::Up: return currentRow - 1;
    case Key::Down: return currentRow + 1;
    case Key::PageUp: return std::max(currentRow - pageRows, 1);
    case Key::PageDown: return std::min(currentRow + pageRows, rowCount - 1);
    case Key::Home: return 1;
    case Key::End: return rowCount - 1;
    default: return 0;
  }
}

std::optional<Step> stepOf(const KeyPress& press) {
  if (press.control || press.alt) return std::nullopt;
  switch (press.key) {
    case Key::Tab: return press.shift ? Step::PreviousCell : Step::NextCell;
    case Key::BackTab: return Step::PreviousCell;
    case Key::Enter: return Step::NextLine;
    case Key::Up: return Step::Up;
    case Key::Down: return Step::Down;
    case Key::PageUp: return Step::PageUp;
    case Key::PageDown: return Step::PageDown;
    default: return std::nullopt;
  }
}

int rowBehind(Step step, int row, int rowCount, int pageRows) {
  switch (step) {
    case Step::NextCell:
    case Step::NextLine:
    case Step::Down: return row + 1;
    case Step::PreviousCell:
    case Step::Up: return row - 1;
    case Step::PageDown: return std::min(row + pageRows, rowCount - 1);
    case Step::PageUp: return std::max(row - pageRows, 1);
  }
  return 0;
}

}  // namespace mavCycEd::kit
