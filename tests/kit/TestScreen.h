#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kit/GridUnits.h"
#include "kit/ValueList.h"
#include "kit/ValueListScreen.h"

/// A value list of three rows on a screen that there is not, and a record of what it told.
namespace mavCycEd::kit::test {

/// A screen whose pixels are the grid's own units. The arrow of a list is from x = 300 on.
class TestScreen : public ValueListScreen, public CellEditor {
 public:
  explicit TestScreen(const ValueListRows& rows) : rows_(rows) {}

  void showCurrentRow() override { shownRow = rows_.currentRow(); }
  void announceCurrentRow() override { ++announced; }
  GridHit hitAt(Place place) const override {
    const int row = units::rowAt(place.y);
    const bool isRow = row < rows_.rowCount();
    return {.row = isRow ? row : -1,
            .onValue = isRow && place.x >= units::valueColumnBegin,
            .onArrow = isRow && place.x >= 300 && rows_.hasPickList(row),
            .x = place.x,
            .y = place.y};
  }
  Place middleOf(int row) const override { return {200, row * units::rowHeight + 9}; }
  int pageRows() const override { return 2; }
  bool isUsable() const override { return usable; }
  bool isFocused() const override { return focus == Focus::Grid; }
  void takeFocus() override { focus = Focus::Grid; }
  void passFocus(bool forward) override { focus = forward ? Focus::Behind : Focus::Before; }
  void copy(std::string_view text) override { copied = text; }

  bool openEditor(int row) override {
    if (!hasEditor) return false;
    EXPECT_EQ(editedRow, 0) << "the editor before it is closed first";
    editedRow = row;
    typing = {rows_.cell(ValueListRows::valueColumn, row), 0};
    focus = Focus::Editor;
    return true;
  }
  void closeEditor() override {
    editedRow = 0;
    if (focus == Focus::Editor) focus = Focus::Grid;
  }
  TypedLine line() const override { return typing; }
  void showLine(const TypedLine& line) override { typing = line; }
  bool takeUntoldTyping() override { return std::exchange(untold, false); }
  void openList() override { ++listsOpened; }
  void watchMouse(bool watch) override { watchesMouse = watch; }

  enum class Focus { Before, Grid, Editor, Behind };
  Focus focus = Focus::Before;
  TypedLine typing;
  std::string copied;
  int shownRow = 0;
  int announced = 0;
  int editedRow = 0;  // the row that the editor stands in
  int listsOpened = 0;
  bool usable = true;
  bool hasEditor = true;
  bool untold = false;
  bool watchesMouse = false;

 private:
  const ValueListRows& rows_;
};

/// Volume, Source (with a list) and Speed.
class TestList {
 public:
  TestList() {
    list->setScreen(&screen, &screen);
    list->insertRow("Volume", "10", true);
    list->insertRow("Source", "Tray1", true);
    list->insertRow("Speed", "", true);
    list->setPickList(2, "Tray1;Tray2;Buffer");
    list->setEvents(events());
  }
  ~TestList() {
    if (list) list->setScreen(nullptr, nullptr);
  }
  TestList(const TestList&) = delete;
  TestList& operator=(const TestList&) = delete;

  platform::ValueListEvents events() {
    return {
        .SelectionChange = [this] { log("row " + std::to_string(list->rows().currentRow())); },
        .ContextPopup = [this](int x, int y) { log("menu " + place(x, y)); },
        .MouseDown = [this](platform::MouseButton button, int x,
                            int y) { log("press " + std::to_string(static_cast<int>(button)) + " " + place(x, y)); },
        .MouseMove = [this](int x, int y) { log("move " + place(x, y)); },
        .SetEditText = [this](int, int row,
                              const std::string& value) { log("text " + std::to_string(row) + " '" + value + "'"); },
        .EndOfEdit =
            [this](int, int row, const std::string& key, const std::string& value) {
              log("end " + std::to_string(row) + " " + key + "='" + value + "'");
            }};
  }

  int editedRow() const { return list->edit().row(); }
  std::string value(int row) const { return list->rows().cell(ValueListRows::valueColumn, row); }
  void press(int column, int row) {
    list->pressMouse(platform::MouseButton::Primary, {column == 0 ? 5 : 200, row * units::rowHeight + 3});
    if (list) list->releaseMouse();
  }
  void key(Key key, bool shift = false) {
    if (list->edit().isOpen()) {
      list->pressKeyInEditor({.key = key, .shift = shift});
    } else {
      list->pressKey({.key = key, .shift = shift});
    }
  }
  /// The user types over what the editor shows.
  void type(const std::string& text) {
    screen.typing = {text, text.size()};
    list->typedInEditor();
  }
  /// What was told since the last call.
  std::vector<std::string> told() { return std::exchange(told_, {}); }

  std::unique_ptr<ValueList> list = std::make_unique<ValueList>();
  TestScreen screen{list->rows()};
  std::function<void(const std::string& event)> answer;  // what the owner does when it is told something

 private:
  static std::string place(int x, int y) { return std::to_string(x) + "," + std::to_string(y); }
  void log(const std::string& event) {
    told_.push_back(event);
    if (const auto answering = answer) answering(event);
  }

  std::vector<std::string> told_;
};

}  // namespace mavCycEd::kit::test
