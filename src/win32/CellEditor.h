#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "kit/TypedLine.h"
#include "win32/NativeWindow.h"

namespace mavCycEd::win32 {

/// What stands in a cell while its value is edited: a line to type into, or a line with a list to pick from.
class CellEditor {
 public:
  struct Events {
    std::function<void()> typed;           ///< the text changed
    std::function<void(int item)> picked;  ///< an item of the list was picked
    std::function<bool(WPARAM key)> key;   ///< a key that may end the edit; true: it was taken
    std::function<void()> left;            ///< the keyboard focus may have gone elsewhere
  };

  /// An empty list: only a line to type into.
  CellEditor(HWND grid, const std::vector<std::string>& list, const FontHandle& font, int dpi, Events events);
  ~CellEditor();
  CellEditor(const CellEditor&) = delete;
  CellEditor& operator=(const CellEditor&) = delete;

  /// The window that the keys go to.
  HWND line() const;
  std::string text() const;
  /// The text and the cursor in it.
  kit::TypedLine typedLine() const;
  /// Shows a text, the cursor behind it, or where it is said to be. Raises nothing.
  void setText(std::string_view text) { show({std::string(text), text.size()}); }
  void show(const kit::TypedLine& line);
  void place(const RECT& cell);
  void setFocus();
  bool hasFocus() const;
  bool hasList() const { return combo_ != nullptr; }
  /// Opens the list at the item that the text is, and leaves the text as it is.
  void showList();
  bool isListOpen() const;
  /// Something was typed that typed() has not told yet.
  bool hasUntoldTyping() const { return untoldTyping_; }
  /// The first half of a character has arrived that comes in two.
  bool isHalfTyped() const;
  /// It is being told now.
  void typingIsTold() { untoldTyping_ = false; }

 private:
  class Line;
  class Combo;
  void noteTyping();

  Events events_;
  std::vector<std::string> list_;
  bool settingText_ = false;
  bool untoldTyping_ = false;
  std::unique_ptr<Combo> combo_;
  std::unique_ptr<Line> line_;
};

}  // namespace mavCycEd::win32
