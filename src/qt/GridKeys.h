#pragma once

#include <QKeyEvent>

namespace mavCycEd::qt {

/// Whether a key is pressed alone; the keypad's keys count as all others.
inline bool isPlain(const QKeyEvent& key) { return (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier; }

/// Whether a key is Enter, one of the two.
inline bool isEnter(const QKeyEvent& key) {
  return isPlain(key) && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}

/// Whether a key asks for the pop-up menu. The menu key does so by itself; not every keyboard has one.
inline bool isMenuKey(const QKeyEvent& key) { return key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier; }

/// Whether a key asks for the help.
inline bool isHelpKey(const QKeyEvent& key) { return isPlain(key) && key.key() == Qt::Key_F1; }

/// Whether a key asks for the list of a cell: F4, or Alt with an arrow up or down.
inline bool isListKey(const QKeyEvent& key) {
  const bool arrow = key.key() == Qt::Key_Down || key.key() == Qt::Key_Up;
  return key.modifiers() == Qt::AltModifier ? arrow : key.key() == Qt::Key_F4 && key.modifiers() == Qt::NoModifier;
}

/// Whether a key in a grid without an open editor begins an edit and belongs into the editor: a character, a key that
/// deletes, a paste.
inline bool beginsEdit(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Paste)) return true;
  const Qt::KeyboardModifiers commands = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  const bool altGr = commands == (Qt::ControlModifier | Qt::AltModifier);
  if (commands != 0 && !altGr) return false;
  if (key.key() == Qt::Key_Delete || key.key() == Qt::Key_Backspace) return true;
  return !key.text().isEmpty() && key.text().front().isPrint();
}

}  // namespace mavCycEd::qt
