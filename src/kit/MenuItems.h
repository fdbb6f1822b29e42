#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/PopupMenu.h"

namespace mavCycEd::kit {

/// The items of a pop-up menu and their rules, the same for every edition. What is left to an edition is to show them.
class MenuItems : public platform::PopupMenu {
 public:
  void setEvents(platform::PopupMenuEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override { caption_ = caption; }
  int itemCount() const override { return static_cast<int>(items_.size()); }
  int lastIndex() const override { return items_.rbegin()->first; }
  bool hasItem(int index) const override { return items_.contains(index); }
  void createItem(int index) override;
  void removeItem(int index) override;
  std::string itemCaption(int index) const override { return items_.at(checked(index)).caption; }
  void setItemCaption(int index, std::string_view caption) override;
  bool isItemVisible(int index) const override { return items_.at(checked(index)).visible; }
  void setItemVisible(int index, bool visible) override;

  /// The indexes of the visible items, in order.
  std::vector<int> visibleIndexes() const;
  /// Their captions.
  std::vector<std::string> visibleCaptions() const;

 protected:
  const platform::PopupMenuEvents& events() const { return events_; }
  /// An item has come, gone or changed.
  virtual void itemsChanged() {}

 private:
  struct Item {
    std::string caption;
    bool visible = true;
  };
  int checked(int index) const;

  platform::PopupMenuEvents events_;
  std::string caption_;
  std::map<int, Item> items_{{0, Item{}}};
};

}  // namespace mavCycEd::kit
