#pragma once

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>

namespace mavCycEd::qt {

/// Whether the keyboard focus is in a control, in an editor of it, or in the list that one of them has dropped down.
inline bool holdsFocus(const QWidget& control) {
  const QWidget* focus = QApplication::focusWidget();
  while (focus != nullptr && focus != &control) focus = focus->parentWidget();
  return focus != nullptr;
}

/// Whether a control loses the focus to another control, and not for a while to a list of its own, a menu, or another
/// window.
inline bool leavesControl(const QWidget& control, const QFocusEvent& event) {
  switch (event.reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason: return false;
    default: break;
  }
  return !holdsFocus(control);
}

}  // namespace mavCycEd::qt
