#pragma once

#include <functional>

#include "com/Com.h"
#include "win32/EditorScreen.h"

namespace mavCycEd::com {

/// The control's window in its container: the editor's screen, placed and clipped as the container says. The screen
/// lives as long as the control; while no container has it in place it waits where nobody sees it.
class ControlWindow {
 public:
  explicit ControlWindow(win32::EditorScreen& screen);
  ~ControlWindow();
  ControlWindow(const ControlWindow&) = delete;
  ControlWindow& operator=(const ControlWindow&) = delete;

  /// nullptr once a container has destroyed its own window with ours in it.
  HWND handle() const { return screen_.window(); }

  /// The user pressed a mouse button in the window or in one below it.
  void setMouseActivated(std::function<void()> handler) { mouseActivated_ = std::move(handler); }

  /// Shows the window in a container's: `position` is where the whole control is, `clip` what of it may be seen.
  void show(HWND parent, const RECT& position, const RECT& clip);
  void move(const RECT& position, const RECT& clip);
  void hide();

  bool hasFocus() const;
  /// Gives the keyboard to the window below that had it last, or to the first one that takes it.
  void focus();

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR self);

  win32::EditorScreen& screen_;
  std::function<void()> mouseActivated_;
  HWND lastFocus_ = nullptr;
};

}  // namespace mavCycEd::com
