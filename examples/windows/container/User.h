#pragma once

#include <string>

#include "HostWindow.h"

/// A user at the keyboard and the mouse: what it does goes through the system's own input, as a person's does.
class User {
 public:
  explicit User(HostWindow& host) : host_(host) {}

  void press(WORD key) { keys({key}); }
  void press(WORD held, WORD key) { keys({held, key}); }
  void type(const std::wstring& text);
  /// Clicks into a window, so far from its upper left corner.
  void click(HWND window, int x, int y);
  /// Waits so long, and deals with what comes meanwhile.
  void wait(DWORD milliseconds);

 private:
  void keys(std::initializer_list<WORD> keys);
  void send(const std::vector<INPUT>& inputs);

  HostWindow& host_;
};
