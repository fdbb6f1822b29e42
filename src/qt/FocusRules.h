#pragma once

#include <QFocusEvent>

namespace mavCycEd::qt {

/// Whether a control loses the focus to another control, and not for a while to a list of its own, a menu, or another
/// window.
inline bool leavesControl(const QFocusEvent& event) {
  switch (event.reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason: return false;
    default: return true;
  }
}

}  // namespace mavCycEd::qt
