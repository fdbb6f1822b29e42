#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/PopupMenu.h"
#include "win32/CommandGate.h"
#include "win32/MessageWindow.h"
#include "win32/Notify.h"

namespace mavCycEd::win32 {

/// A pop-up menu. It opens when the procedure that asks for it has returned, because the system shows menus in a
/// message loop of its own.
class Win32PopupMenu : public platform::PopupMenu, private MessageWindow {
 public:
  /// `owner`: the window that the menu belongs to.
  Win32PopupMenu(const CommandGate& gate, std::function<HWND()> owner);

  /// Where the menu opens, in screen coordinates; at the pointer when nobody says.
  void setPlace(std::function<POINT()> place) { place_ = std::move(place); }

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
  void popUp() override;

  /// The captions of the visible items, in index order.
  std::vector<std::string> visibleCaptions() const;
  /// Whether the menu has been asked for and is not open yet.
  bool isWaiting() const { return waiting_; }
  /// The window that gets the message which opens the menu.
  HWND opener() const { return handle(); }

 private:
  struct Item {
    std::string caption;
    bool visible = true;
  };
  const Item& item(int index) const;
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void open();

  const CommandGate& gate_;
  std::function<HWND()> owner_;
  std::function<POINT()> place_;
  platform::PopupMenuEvents events_;
  std::string caption_;
  std::map<int, Item> items_{{0, Item{}}};
  bool waiting_ = false;
  Lifeline lifeline_;
};

}  // namespace mavCycEd::win32
