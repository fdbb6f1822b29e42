#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "memory/Control.h"
#include "platform/RunTimeError.h"
#include "platform/SelectionList.h"

namespace mavCycEd::memory {

/// A list with any number of selected items, without a screen.
class MemorySelectionList : public platform::SelectionList, public Control {
 public:
  using Control::Control;

  void clear() override { items_.clear(); }
  void addItem(std::string_view text, bool selected) override { items_.push_back({std::string(text), selected}); }
  int itemCount() const override { return static_cast<int>(items_.size()); }
  std::string itemText(int index) const override { return items_[checked(index)].text; }
  bool isSelected(int index) const override { return items_[checked(index)].selected; }

  /// The user selects an item, or takes its selection back.
  void toggle(int index) { items_[checked(index)].selected = !items_[checked(index)].selected; }

 private:
  struct Item {
    std::string text;
    bool selected;
  };
  std::size_t checked(int index) const {
    if (index < 0 || index >= itemCount()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    return static_cast<std::size_t>(index);
  }

  std::vector<Item> items_;
};

}  // namespace mavCycEd::memory
