#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kit/LineCount.h"
#include "kit/ListItems.h"
#include "kit/SelectionRanges.h"
#include "memory/Control.h"
#include "platform/ItemListBox.h"
#include "platform/LineListBox.h"

namespace mavCycEd::memory {

/// A list box without a screen.
class MemoryListBox : public virtual platform::ListBox, public Control {
 public:
  using Control::Control;

  void setEvents(platform::ListBoxEvents events) override { events_ = std::move(events); }
  int itemCount() const override { return texts().count(); }
  std::string itemText(int index) const override { return texts().text(index); }
  int index() const override { return selection_.first(); }
  void setIndex(int index) override;
  platform::Font font() const override { return font_; }
  void setItemFont(const platform::Font& font) override { font_ = font; }

  /// The user double-clicks an item: it is selected, then the double click is told.
  void doubleClick(int index);
  /// The texts of all items.
  std::vector<std::string> items() const;

 protected:
  virtual const kit::ListTexts& texts() const = 0;
  kit::SelectionRanges& selection() { return selection_; }

 private:
  platform::ListBoxEvents events_;
  kit::SelectionRanges selection_;
  platform::Font font_;
};

/// A list of items without a screen.
class MemoryItemListBox : public MemoryListBox, public platform::ItemListBox {
 public:
  using MemoryListBox::MemoryListBox;

  void clear() override { assign({}); }
  void assign(std::vector<std::string> items) override;
  void addItem(std::string_view text) override { items_.append(text); }
  void insertItem(int index, std::string_view text) override;
  void removeItem(int index) override;
  void setItemText(int index, std::string_view text) override { items_.setText(index, text); }

 protected:
  const kit::ListTexts& texts() const override { return items_; }

 private:
  kit::ListItems items_;
};

/// A list of an owner's lines without a screen.
class MemoryLineListBox : public MemoryListBox, public platform::LineListBox {
 public:
  using MemoryListBox::MemoryListBox;

  void clear() override;
  void showLines(const platform::ListLines& lines) override;
  void spliced(int at, int removed, int added) override;

 protected:
  const kit::ListTexts& texts() const override { return lines_; }

 private:
  kit::LineCount lines_;
};

}  // namespace mavCycEd::memory
