#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/ValueListActiveX.h"
#include "win32/Accessible.h"
#include "win32/CellEdit.h"
#include "win32/GridGeometry.h"
#include "win32/GridRows.h"
#include "win32/NativeWindow.h"
#include "win32/ToolTip.h"

namespace mavCycEd::win32 {

/// A value list on the screen: the keys and the mouse of its user. A value is edited in its cell: a click on it, F2,
/// Enter or simply typing opens the editor.
class ValueListView : public NativeWindow {
 public:
  struct Events {
    std::function<void()> rowChosen;
    std::function<void(platform::MouseButton button, int x, int y)> mousePressed;
    std::function<void(int x, int y)> mouseMoved;
    std::function<void(int x, int y)> menuAskedFor;
  };

  ValueListView(GridRows& rows, HWND parent, Win32Frame* frame);
  ~ValueListView() override;

  void setEvents(Events events) { events_ = std::move(events); }

  CellEdit& cellEdit() { return *cellEdit_; }
  const CellEdit& cellEdit() const { return *cellEdit_; }
  const GridGeometry& geometry() const { return geometry_; }
  const GridRows& gridRows() const { return rows_; }
  const FontHandle& cellFont() const { return font_; }
  int dpi() const { return dpi_; }

  platform::Font font() const;
  void setFont(const platform::Font& font);
  void setScreenFont(const FontHandle& font, int dpi) override;
  AccessibleItems* accessibleItems() override { return &accessibleItems_; }
  void setToolTip(const std::string& text) { toolTip_.setText(text); }
  /// Whether Enter opens the editor of the current row's value, as F2 does; it does unless the window has another use
  /// for it.
  void setEnterOpens(bool opens) { enterOpens_ = opens; }

  /// The rows have changed: their number, or what stands in them.
  void rowsChanged();
  void repaint();
  /// Brings the current row into view.
  void showCurrentRow();
  /// The user makes a parameter row current; told when it was not.
  void chooseRow(int row);
  /// Where an ended edit leads.
  void goOn(int row, CellEdit::Step step);
  /// Opens the editor of the current row's value, if there is a row.
  void editCurrentRow();
  /// Where the pop-up menu was last asked for, on the screen.
  POINT menuPlace() const { return menuPlace_; }

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  class Items : public AccessibleItems {
   public:
    explicit Items(ValueListView& view) : view_(view) {}
    int count() const override { return view_.rows_.rows.rowCount() - 1; }
    std::wstring name(int item) const override;
    std::wstring value(int item) const override;
    RECT place(int item) const override;
    int current() const override { return view_.rows_.rows.currentRow(); }
    void choose(int item) override { view_.chooseRow(item); }

   private:
    ValueListView& view_;
  };

  LRESULT onPaint();
  void onSize();
  void onScroll(int request);
  void scrollTo(int top);
  void onWheel(int delta);
  void onPress(platform::MouseButton button, POINT place);
  void onMove(POINT place, bool isLeftDown);
  void onRelease(POINT place);
  void onContextMenu(POINT place);
  void askForMenuByKey();
  void askForMenu(POINT units, POINT place);
  void makeCurrent(int row);
  bool onKey(WPARAM key);
  bool moveBy(WPARAM key);
  bool onCharacter(WPARAM character);
  void copyCurrent() const;
  bool isDivider(POINT place) const;
  void fit();

  GridRows& rows_;
  Events events_;
  GridGeometry geometry_;
  FontHandle font_;
  std::optional<platform::Font> ownFont_;
  int dpi_ = USER_DEFAULT_SCREEN_DPI;
  POINT menuPlace_{};
  bool dragging_ = false;  // the divider
  bool enterOpens_ = true;
  bool listWanted_ = false;  // the mouse button went down on an arrow
  int wheel_ = 0;            // what is left of the wheel's last turn
  ToolTip toolTip_;
  Items accessibleItems_{*this};
  std::unique_ptr<CellEdit> cellEdit_;
};

}  // namespace mavCycEd::win32
