#pragma once

#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// A window that is nowhere on the screen and only gets messages.
class MessageWindow {
 public:
  MessageWindow();
  virtual ~MessageWindow();
  MessageWindow(const MessageWindow&) = delete;
  MessageWindow& operator=(const MessageWindow&) = delete;

 protected:
  HWND handle() const { return handle_; }
  virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR self);

  HWND handle_;
};

}  // namespace mavCycEd::win32
