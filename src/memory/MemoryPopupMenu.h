#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/PopupMenu.h"

namespace mavCycEd::memory {

/// A pop-up menu without a screen.
class MemoryPopupMenu : public platform::PopupMenu {
 public:
  void setEvents(platform::PopupMenuEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override { caption_ = caption; }
  int itemCount() const override { return static_cast<int>(items_.size()); }
  int lastIndex() const override { return items_.rbegin()->first; }
  bool hasItem(int index) const override { return items_.contains(index); }
  void createItem(int index) override;
  void removeItem(int index) override;
  std::string itemCaption(int index) const override { return item(index).caption; }
  void setItemCaption(int index, std::string_view caption) override;
  bool isItemVisible(int index) const override { return item(index).visible; }
  void setItemVisible(int index, bool visible) override;
  void popUp() override { open_ = true; }

  bool isOpen() const { return open_; }
  /// The captions that the open menu shows, in order.
  std::vector<std::string> visibleCaptions() const;
  /// The user chooses the item at this place among the visible ones. False when the menu is closed or shows no such
  /// item.
  bool choose(int place);
  /// The user closes the menu without a choice.
  void dismiss() { open_ = false; }

 private:
  struct Item {
    std::string caption;
    bool visible = true;
  };
  const Item& item(int index) const;
  std::vector<int> visibleIndexes() const;

  platform::PopupMenuEvents events_;
  std::string caption_;
  std::map<int, Item> items_{{0, Item{}}};
  bool open_ = false;
};

}  // namespace mavCycEd::memory
