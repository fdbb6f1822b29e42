#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kit/CommandGate.h"
#include "kit/LineCount.h"
#include "kit/ListItems.h"
#include "kit/SelectionRanges.h"
#include "kit/TypeAhead.h"
#include "platform/ItemListBox.h"
#include "platform/LineListBox.h"
#include "win32/Accessible.h"
#include "win32/NativeWindow.h"
#include "win32/Typing.h"

namespace mavCycEd::win32 {

/// A list box. The window knows the number of its lines only and asks for the text of those that it draws.
///
/// It selects like a list box: the press of the button selects, a press below the items selects none, and every choice
/// of a user is told, also one of the item that was selected already.
class Win32ListBox : public virtual platform::ListBox, public NativeWindow {
 public:
  void setEvents(platform::ListBoxEvents events) override { events_ = std::move(events); }
  int itemCount() const override { return texts().count(); }
  std::string itemText(int index) const override { return texts().text(index); }
  int index() const override { return selection_.first(); }
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
  Win32ListBox(const kit::CommandGate& gate, HWND parent, Win32Frame* frame);

  virtual const kit::ListTexts& texts() const = 0;
  /// A text is being drawn. True when the list needs more room for it than it was given.
  virtual bool notice(int /*index*/) { return false; }
  /// The texts have become others as a whole, and none is selected.
  void reset();
  /// Texts went and came, and those in view may be others.
  void splice(const kit::Splice& change);

  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void onDraw(const DRAWITEMSTRUCT& item) override;
  void onPosted(int what) override;

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

  void showCount();
  void showAnew();
  void showSelection();
  void fitWidth();
  int itemAt(LPARAM place) const;
  void press(LPARAM place);
  std::optional<LRESULT> onKey(UINT message, WPARAM wParam, LPARAM lParam);
  void searchFor(wchar_t character);
  void choose(int index);
  void raiseClick();
  void applyItemFont();

  const kit::CommandGate& gate_;
  platform::ListBoxEvents events_;
  kit::SelectionRanges selection_;
  kit::TypeAhead typeAhead_{typingPause};
  std::function<void()> onDelete_;
  std::function<void()> onReturn_;
  std::optional<platform::Font> itemFont_;
  FontHandle itemFontHandle_;
  int dpi_ = USER_DEFAULT_SCREEN_DPI;
  Items accessibleItems_{*this};
};

/// A list of items.
class Win32ItemListBox : public Win32ListBox, public platform::ItemListBox {
 public:
  Win32ItemListBox(const kit::CommandGate& gate, HWND parent, Win32Frame* frame) : Win32ListBox(gate, parent, frame) {}

  void clear() override { assign({}); }
  void assign(std::vector<std::string> items) override;
  void addItem(std::string_view text) override { insertItem(itemCount(), text); }
  void insertItem(int index, std::string_view text) override;
  void removeItem(int index) override;
  void setItemText(int index, std::string_view text) override;

 protected:
  const kit::ListTexts& texts() const override { return items_; }

 private:
  kit::ListItems items_;
};

/// A list of an owner's lines.
class Win32LineListBox : public Win32ListBox, public platform::LineListBox {
 public:
  Win32LineListBox(const kit::CommandGate& gate, HWND parent, Win32Frame* frame) : Win32ListBox(gate, parent, frame) {}

  void clear() override;
  void showLines(const platform::ListLines& lines) override;
  void spliced(int at, int removed, int added) override;

 protected:
  const kit::ListTexts& texts() const override { return lines_; }
  bool notice(int index) override { return lines_.notice(index); }

 private:
  kit::LineCount lines_;
};

}  // namespace mavCycEd::win32
