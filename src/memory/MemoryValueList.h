#pragma once

#include <string_view>

#include "kit/ValueListPort.h"
#include "memory/Control.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd::memory {

/// A value list without a screen.
class MemoryValueList : public kit::ValueListPort, public Control {
 public:
  explicit MemoryValueList(const MemoryFrame* container);
  ~MemoryValueList() override;
  MemoryValueList(const MemoryValueList&) = delete;
  MemoryValueList& operator=(const MemoryValueList&) = delete;

  platform::Font font() const override { return font_; }
  void setCellFont(const platform::Font& font) override { font_ = font; }

  /// The user makes a parameter row current.
  void makeCurrent(int row) { list().chooseRow(row); }
  /// The user replaces a row's value by typing, a character at a time, and ends the edit. An empty text clears the
  /// cell.
  void type(int row, std::string_view typed);
  /// The user picks an item of a row's list.
  void pick(int row, std::string_view item);
  void pressMouse(platform::MouseButton button, int x, int y) { list().pressMouse(button, {x, y}); }
  void moveMouse(int x, int y) { list().moveMouse({x, y}); }
  void requestContextMenu(int x, int y) { list().askForMenu({x, y}); }

 private:
  /// A screen that knows places only, in the grid's own units.
  class Screen : public kit::ValueListScreen {
   public:
    explicit Screen(const kit::ValueListRows& rows) : rows_(rows) {}
    void showCurrentRow() override {}
    void announceCurrentRow() override {}
    kit::GridHit hitAt(kit::Place place) const override;
    kit::Place middleOf(int row) const override;
    int pageRows() const override { return 1; }
    bool isUsable() const override { return true; }
    bool isFocused() const override { return false; }
    void takeFocus() override {}
    void passFocus(bool) override {}
    void copy(std::string_view) override {}

   private:
    const kit::ValueListRows& rows_;
  };

  /// An editor that opens for a user who types only.
  class Editor : public kit::CellEditor {
   public:
    void setWanted(bool wanted) { wanted_ = wanted; }
    void type(std::string_view character);

    bool openEditor(int) override;
    void closeEditor() override {}
    kit::TypedLine line() const override { return line_; }
    void showLine(const kit::TypedLine& line) override { line_ = line; }
    bool takeUntoldTyping() override { return false; }
    void openList() override {}
    void watchMouse(bool) override {}

   private:
    bool wanted_ = false;
    kit::TypedLine line_;  // what is selected when the editor opens is typed over: nothing
  };

  bool openEditor(int row);

  Screen screen_{rows()};
  Editor editor_;
  platform::Font font_;
};

}  // namespace mavCycEd::memory
