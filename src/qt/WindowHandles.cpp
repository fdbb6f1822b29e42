#include "qt/WindowHandles.h"

#include <QApplication>
#include <algorithm>

namespace mavCycEd::qt {

platform::WindowHandle handleOf(const QWidget* widget) { return reinterpret_cast<platform::WindowHandle>(widget); }

QWidget* widgetOf(platform::WindowHandle handle) {
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto found = std::ranges::find(windows, handle, handleOf);
  return found == windows.end() ? nullptr : *found;
}

}  // namespace mavCycEd::qt
