#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <stdexcept>

namespace mavCycEd::test {

/// Shows a window and waits until the keyboard belongs to it.
inline void showActive(QWidget& window) {
  window.show();
  window.activateWindow();
  if (QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; })) return;
  throw std::runtime_error("The window does not become active.");
}

}  // namespace mavCycEd::test
