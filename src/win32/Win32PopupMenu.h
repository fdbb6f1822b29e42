#pragma once

#include <functional>
#include <utility>

#include "platform/MenuItems.h"
#include "win32/CommandGate.h"
#include "win32/MessageWindow.h"
#include "win32/Notify.h"

namespace mavCycEd::win32 {

/// A pop-up menu. It opens when the procedure that asks for it has returned, because the system shows menus in a
/// message loop of its own.
class Win32PopupMenu : public platform::MenuItems, private MessageWindow {
 public:
  /// `owner`: the window that the menu belongs to.
  Win32PopupMenu(const CommandGate& gate, std::function<HWND()> owner);

  /// Where the menu opens, in screen coordinates; at the pointer when nobody says.
  void setPlace(std::function<POINT()> place) { place_ = std::move(place); }

  void popUp() override;

  /// Whether the menu has been asked for and is not open yet.
  bool isWaiting() const { return waiting_; }
  /// The window that gets the message which opens the menu.
  HWND opener() const { return handle(); }

 private:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void open();

  const CommandGate& gate_;
  std::function<HWND()> owner_;
  std::function<POINT()> place_;
  bool waiting_ = false;
  Lifeline lifeline_;
};

}  // namespace mavCycEd::win32
