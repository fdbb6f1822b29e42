#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kit/CommandGate.h"
#include "win32/PanelWindow.h"
#include "win32/Win32ListBox.h"

namespace mavCycEd::win32 {

/// The entries of a pop-up menu that are too many for a menu of the system's: a list in the menu's place. It closes as
/// a menu does: with a choice, with Esc, and as soon as another window is used.
class MenuList : public PanelWindow {
 public:
  /// `owner`: a window on the screen; the list belongs to the window around it.
  MenuList(HWND owner, std::vector<std::string> captions);

  /// Shows the list with a corner at `place` of the screen until it closes; the place of the entry that the user chose,
  /// or nothing. The caller of `close`, and whatever else runs meanwhile, may destroy the owner.
  std::optional<int> choose(POINT place);
  void close();

  HWND list() const { return list_.handle(); }

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  class Entries : public Win32ItemListBox {
   public:
    Entries(const kit::CommandGate& gate, MenuList& menu)
        : Win32ItemListBox(gate, menu.handle(), nullptr), menu_(menu) {}

   protected:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

   private:
    MenuList& menu_;
    bool pressed_ = false;
  };

  void fit(POINT place);
  void take();
  void loop();

  kit::CommandGate gate_;  // nothing is open that a press in the list would end
  Entries list_{gate_, *this};
  std::string longest_;
  FontHandle font_;
  std::optional<int> chosen_;
  bool open_ = false;
};

}  // namespace mavCycEd::win32
