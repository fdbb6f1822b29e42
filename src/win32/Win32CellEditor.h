#pragma once

#include <memory>

#include "kit/ValueList.h"
#include "kit/ValueListScreen.h"
#include "win32/CellEditor.h"
#include "win32/MessageWindow.h"

namespace mavCycEd::win32 {

class ValueListView;

/// The editor of a value in its cell of a view.
class Win32CellEditor : public kit::CellEditor, private MessageWindow {
 public:
  Win32CellEditor(std::shared_ptr<kit::ValueList> list, ValueListView& view);

  bool openEditor(int row) override;
  void closeEditor() override;
  kit::TypedLine line() const override;
  void showLine(const kit::TypedLine& line) override;
  bool takeUntoldTyping() override;
  void openList() override;
  void watchMouse(bool watch) override;

  /// The window that the keys go to; nullptr when no editor is open.
  HWND window() const { return editor_ ? editor_->line() : nullptr; }
  /// The editor stands where its cell stands.
  void follow();
  /// Tells when the keyboard focus has gone from the editor to another control.
  void checkFocus();

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool onKey(WPARAM key);
  void place(int row);

  std::shared_ptr<kit::ValueList> list_;
  ValueListView& view_;
  std::unique_ptr<win32::CellEditor> editor_;
};

}  // namespace mavCycEd::win32
