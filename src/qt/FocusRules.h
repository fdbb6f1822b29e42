#pragma once

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>

namespace mavCycEd::qt {

/// Whether a control loses the focus to another control, and not for a while to a list of its own, a menu, or another
/// window.
inline bool leavesControl(const QWidget& control, const QFocusEvent& event) {
  switch (event.reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason: return false;
    default: break;
  }
  const QWidget* focus = QApplication::focusWidget();
  while (focus != nullptr && focus != &control) focus = focus->parentWidget();
  return focus == nullptr;
}

}  // namespace mavCycEd::qt
