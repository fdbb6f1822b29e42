#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "kit/ValueList.h"
#include "win32/Accessible.h"
#include "win32/GridGeometry.h"
#include "win32/NativeWindow.h"
#include "win32/ToolTip.h"
#include "win32/Win32CellEditor.h"

namespace mavCycEd::win32 {

/// A value list on the screen: its looks, and the messages of its user's keys and mouse.
class ValueListView : public NativeWindow, private kit::ValueListScreen, private kit::ValueListRows::Observer {
 public:
  ValueListView(std::shared_ptr<kit::ValueList> list, HWND parent, Win32Frame* frame);
  ~ValueListView() override;
  ValueListView(const ValueListView&) = delete;
  ValueListView& operator=(const ValueListView&) = delete;

  const Win32CellEditor& cellEditor() const { return cellEditor_; }
  const GridGeometry& geometry() const { return geometry_; }
  const FontHandle& cellFont() const { return font_; }
  int dpi() const { return dpi_; }

  platform::Font font() const;
  void setFont(const platform::Font& font);
  void setScreenFont(const FontHandle& font, int dpi) override;
  AccessibleItems* accessibleItems() override { return &accessibleItems_; }
  void setToolTip(const std::string& text) { toolTip_.setText(text); }
  void repaint();
  /// The user opens the editor of the current row's value, if there is a row.
  void editCurrentRow() { std::shared_ptr(list_)->editCurrentRow(); }
  /// Where the pop-up menu was last asked for, on the screen.
  POINT menuPlace() const;

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  class Items : public AccessibleItems {
   public:
    explicit Items(ValueListView& view) : view_(view) {}
    int count() const override { return view_.rows().rowCount() - 1; }
    std::wstring name(int item) const override;
    std::wstring value(int item) const override;
    RECT place(int item) const override;
    int current() const override { return view_.rows().currentRow(); }
    void choose(int item) override { std::shared_ptr(view_.list_)->chooseRow(item); }

   private:
    ValueListView& view_;
  };

  void showCurrentRow() override;
  void announceCurrentRow() override;
  kit::GridHit hitAt(kit::Place place) const override;
  kit::Place middleOf(int row) const override;
  int pageRows() const override { return geometry_.pageRows(); }
  bool isUsable() const override { return isEnabledHere(); }
  bool isFocused() const override { return handle() != nullptr && GetFocus() == handle(); }
  void takeFocus() override;
  void passFocus(bool forward) override;
  void copy(std::string_view text) override;

  void aboutToInsert(int) override {}
  void inserted() override { fitToRows(); }
  void aboutToRemove(int) override {}
  void removed() override { fitToRows(); }
  void changed(int, int) override { repaint(); }

  const kit::ValueListRows& rows() const { return list_->rows(); }
  void fitToRows();
  LRESULT onPaint();
  void onSize();
  void onScroll(int request);
  void scrollTo(int top);
  void onWheel(int delta);
  void onPress(platform::MouseButton button, POINT place);
  void onMove(POINT place, bool isLeftDown);
  void onRelease();
  void onContextMenu(POINT place);
  bool onKey(WPARAM key);
  void onCharacter(WPARAM character);
  bool isDivider(POINT place) const;
  void fit();

  std::shared_ptr<kit::ValueList> list_;
  GridGeometry geometry_;
  FontHandle font_;
  std::optional<platform::Font> ownFont_;
  int dpi_ = USER_DEFAULT_SCREEN_DPI;
  bool dragging_ = false;  // the divider
  int wheel_ = 0;          // what is left of the wheel's last turn
  ToolTip toolTip_;
  Items accessibleItems_{*this};
  Win32CellEditor cellEditor_{list_, *this};
};

}  // namespace mavCycEd::win32
