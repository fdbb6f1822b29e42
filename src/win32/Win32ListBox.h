#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/CommandGate.h"
#include "platform/ListBox.h"
#include "win32/Accessible.h"
#include "win32/NativeWindow.h"

namespace mavCycEd::win32 {

/// A list box. The window knows the number of its lines only and asks for the text of those that it draws.
///
/// It selects like a list box: the press of the button selects, a press below the items selects none, and every choice
/// of a user is told, also one of the item that was selected already.
class Win32ListBox : public platform::ListBox, public NativeWindow {
 public:
  Win32ListBox(const platform::CommandGate& gate, HWND parent, Win32Frame* frame);

  void setEvents(platform::ListBoxEvents events) override { events_ = std::move(events); }
  void clear() override { assign({}); }
  void assign(std::vector<std::string> items) override;
  void showLines(const platform::ListLines& lines) override;
  void lineAdded() override;
  void lineChanged(int index) override;
  void addItem(std::string_view text) override;
  void removeItem(int index) override;
  void setItemText(int index, std::string_view text) override;
  int itemCount() const override { return lines_ != nullptr ? lineCount_ : static_cast<int>(items_.size()); }
  std::string itemText(int index) const override;
  int index() const override { return index_; }
  void setIndex(int index) override;
  platform::Font font() const override;
  void setItemFont(const platform::Font& font) override;

  /// The texts of all items.
  std::vector<std::string> items() const;

  /// What Del and Enter do while the list has the focus, besides what the list does with them.
  void setKeys(std::function<void()> onDelete, std::function<void()> onReturn);
  /// What a double click of the user on the selected item does; nothing when none is selected.
  void doubleClick();

  void setScreenFont(const FontHandle& font, int dpi) override;
  AccessibleItems* accessibleItems() override { return &accessibleItems_; }

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void onDraw(const DRAWITEMSTRUCT& item) override;

 private:
  class Items : public AccessibleItems {
   public:
    explicit Items(Win32ListBox& list) : list_(list) {}
    int count() const override { return list_.itemCount(); }
    std::wstring name(int item) const override;
    std::wstring value(int /*item*/) const override { return {}; }
    RECT place(int item) const override;
    int current() const override { return list_.index() + 1; }
    void choose(int item) override { list_.choose(item - 1); }

   private:
    Win32ListBox& list_;
  };

  std::size_t checked(int index) const;
  void showCount();
  void showItem(int index);
  void showSelection();
  void fitWidth();
  int itemAt(LPARAM place) const;
  void press(LPARAM place);
  std::optional<LRESULT> onKey(UINT message, WPARAM wParam, LPARAM lParam);
  bool searchFor(wchar_t character);
  void choose(int index);
  void raiseClick();
  void applyItemFont();

  const platform::CommandGate& gate_;
  platform::ListBoxEvents events_;
  std::vector<std::string> items_;
  const platform::ListLines* lines_ = nullptr;  // null: the items are its own
  int lineCount_ = 0;
  int index_ = -1;
  std::size_t longest_ = 0;  // of its own items, in bytes
  std::wstring searched_;    // what was typed without a pause
  ULONGLONG searchedAt_ = 0;
  std::function<void()> onDelete_;
  std::function<void()> onReturn_;
  std::optional<platform::Font> itemFont_;
  FontHandle itemFontHandle_;
  int dpi_ = USER_DEFAULT_SCREEN_DPI;
  Items accessibleItems_{*this};
};

}  // namespace mavCycEd::win32
