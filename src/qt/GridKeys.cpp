#include "qt/GridKeys.h"

namespace mavCycEd::qt {
namespace {

kit::Key namedKey(const QKeyEvent& key) {
  using kit::Key;
  if (key.key() == Qt::Key_Escape) return Key::Escape;
  if ((key.modifiers() & Qt::MetaModifier) != 0) return Key::Other;
  if (key.matches(QKeySequence::Copy)) return Key::Copy;
  if (key.matches(QKeySequence::Paste)) return Key::Paste;
  switch (key.key()) {
    case Qt::Key_Up: return Key::Up;
    case Qt::Key_Down: return Key::Down;
    case Qt::Key_PageUp: return Key::PageUp;
    case Qt::Key_PageDown: return Key::PageDown;
    case Qt::Key_Home: return Key::Home;
    case Qt::Key_End: return Key::End;
    case Qt::Key_Tab: return Key::Tab;
    case Qt::Key_Backtab: return Key::BackTab;
    case Qt::Key_Return:
    case Qt::Key_Enter: return Key::Enter;
    case Qt::Key_F2: return Key::F2;
    case Qt::Key_F4: return Key::F4;
    case Qt::Key_F10: return Key::F10;
    case Qt::Key_Delete: return Key::Delete;
    case Qt::Key_Backspace: return Key::Backspace;
    default: return !key.text().isEmpty() && key.text().front().isPrint() ? Key::Character : Key::Other;
  }
}

}  // namespace

kit::KeyPress keyPressOf(const QKeyEvent& key) {
  const Qt::KeyboardModifiers modifiers = key.modifiers();
  return {.key = namedKey(key),
          .shift = (modifiers & Qt::ShiftModifier) != 0,
          .control = (modifiers & Qt::ControlModifier) != 0,
          .alt = (modifiers & Qt::AltModifier) != 0};
}

}  // namespace mavCycEd::qt
