#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <utility>

#include "kit/CommandGate.h"
#include "kit/Lifeline.h"
#include "kit/MenuItems.h"
#include "win32/MessageWindow.h"

namespace mavCycEd::win32 {

class MenuList;

/// A pop-up menu. It opens when the procedure that asks for it has returned, because the system shows menus in a
/// message loop of its own.
class Win32PopupMenu : public kit::MenuItems, private MessageWindow {
 public:
  /// `owner`: the window that the menu belongs to.
  Win32PopupMenu(const kit::CommandGate& gate, std::function<HWND()> owner);
  ~Win32PopupMenu() override;

  /// Where the menu opens, in screen coordinates; at the pointer when nobody says.
  void setPlace(std::function<POINT()> place) { place_ = std::move(place); }

  void popUp() override;

  /// Whether the menu has been asked for and is not open yet.
  bool isWaiting() const { return waiting_; }
  /// The window that gets the message which opens the menu.
  HWND opener() const { return handle(); }
  /// Whether a list stands for the menu, because it has too many items.
  bool hasMany() const { return visibleIndexes().size() > mostEntries; }
  /// That list while it is open, nullptr otherwise.
  HWND list() const;

 protected:
  void itemsChanged() override;

 private:
  // Beyond these a menu covers the screen, and takes the square of its entries to build.
  static constexpr std::size_t mostEntries = 500;

  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void open();
  void closeOpen();
  // The place of the entry that the user chose among the visible ones.
  std::optional<int> chooseFromMenu(HWND owner, POINT place);
  std::optional<int> chooseFromList(HWND owner, POINT place);

  const kit::CommandGate& gate_;
  std::function<HWND()> owner_;
  std::function<POINT()> place_;
  bool waiting_ = false;
  bool tracking_ = false;         // a menu of the system's is open
  MenuList* openList_ = nullptr;  // or our list
  bool changed_ = false;          // the items, since it opened
  kit::Lifeline lifeline_;
};

}  // namespace mavCycEd::win32
