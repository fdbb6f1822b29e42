#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "memory/Control.h"
#include "platform/ListBox.h"

namespace mavCycEd::memory {

/// A list box without a screen.
class MemoryListBox : public platform::ListBox, public Control {
 public:
  using Control::Control;

  void setEvents(platform::ListBoxEvents events) override { events_ = std::move(events); }
  void clear() override { assign({}); }
  void assign(std::vector<std::string> items) override;
  void showLines(const platform::ListLines& lines) override;
  void lineAdded() override;
  void lineChanged(int index) override { checked(index); }
  void addItem(std::string_view text) override { items_.emplace_back(text); }
  void removeItem(int index) override;
  void setItemText(int index, std::string_view text) override { items_[checked(index)] = text; }
  int itemCount() const override { return lines_ != nullptr ? lineCount_ : static_cast<int>(items_.size()); }
  std::string itemText(int index) const override;
  int index() const override { return index_; }
  void setIndex(int index) override;
  platform::Font font() const override { return font_; }
  void setItemFont(const platform::Font& font) override { font_ = font; }

  /// The user double-clicks an item: it is selected, then the double click is told.
  void doubleClick(int index);
  /// The texts of all items.
  std::vector<std::string> items() const;

 private:
  std::size_t checked(int index) const;

  platform::ListBoxEvents events_;
  std::vector<std::string> items_;
  const platform::ListLines* lines_ = nullptr;  // null: the items are its own
  int lineCount_ = 0;
  int index_ = -1;
  platform::Font font_;
};

}  // namespace mavCycEd::memory
