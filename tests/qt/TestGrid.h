#pragma once

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <string>
#include <vector>

#include "TestWindow.h"
#include "kit/CommandGate.h"
#include "qt/CellEditors.h"
#include "qt/QtButton.h"
#include "qt/QtValueList.h"

namespace mavCycEd::test {

/// A window with a button, a grid of three rows (the second has a pick list) and another button, and a record of what
/// the grid and the buttons told.
class TestGrid {
 public:
  TestGrid() {
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(before.widget());
    layout->addWidget(grid.widget());
    layout->addWidget(after.widget());
    QWidget::setTabOrder(before.widget(), grid.view());
    QWidget::setTabOrder(grid.view(), after.widget());
    gate.setEndEdit([this] { grid.endEdit(); });
    before.setEvents({[this] { log.push_back("Click before"); }});
    after.setCaption("&After");
    after.setEvents({[this] { log.push_back("Click after"); }});
    grid.setEvents(events());
    grid.InsertRow("Volume", "10", true);
    grid.InsertRow("Source", "Tray1", true);
    grid.InsertRow("Speed", "", true);
    grid.setPickList(2, "Tray1;Tray2;Buffer");
    window.resize(400, 300);
    showActive(window);
    before.widget()->setFocus();
  }

  platform::ValueListEvents events() {
    platform::ValueListEvents events;
    events.SelectionChange = [this] { log.push_back("SelectionChange " + std::to_string(grid.Row())); };
    events.ContextPopup = [this](int x, int y) { log.push_back("ContextPopup" + place(x, y)); };
    events.MouseDown = [this](platform::MouseButton button, int x, int y) {
      if (logMouse) log.push_back("MouseDown " + std::to_string(static_cast<int>(button)) + place(x, y));
    };
    events.MouseMove = [this](int x, int y) {
      if (logMouse) log.push_back("MouseMove" + place(x, y));
    };
    events.SetEditText = [this](int column, int row, const std::string& value) {
      log.push_back("SetEditText " + std::to_string(column) + " " + std::to_string(row) + " " + value);
    };
    events.EndOfEdit = [this](int column, int row, const std::string& key, const std::string& value) {
      log.push_back("EndOfEdit " + std::to_string(column) + " " + std::to_string(row) + " " + key + " " + value);
    };
    return events;
  }

  qt::ValueListView& view() { return *grid.view(); }
  QRect cell(int column, int row) { return view().visualRect(view().model()->index(row - 1, column)); }
  /// The open editor of a row's value, nullptr when there is none.
  QWidget* editor(int row) { return view().indexWidget(view().model()->index(row - 1, 1)); }
  /// The row whose editor is open, 0 for none.
  int editedRow() { return grid.list().edit().row(); }
  std::string editorText() { return qt::lineOf(*editor(editedRow())).text().toStdString(); }
  std::string value(int row) { return grid.cellText(1, row); }

  void click(int column, int row, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(view().viewport(), button, {}, cell(column, row).center());
  }
  /// Presses a key where the focus is.
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text)); }

  /// What was told since the last call.
  std::vector<std::string> told() { return std::exchange(log, {}); }

  QWidget window;
  kit::CommandGate gate;
  qt::QtButton before{gate, "before", &window};
  qt::QtValueList grid{"grid", &window};
  qt::QtButton after{gate, "after", &window};
  std::vector<std::string> log;
  bool logMouse = false;

 private:
  static std::string place(int x, int y) { return " " + std::to_string(x) + "," + std::to_string(y); }
};

}  // namespace mavCycEd::test
