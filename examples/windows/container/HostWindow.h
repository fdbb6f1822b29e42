#pragma once

#include <string>
#include <vector>

#include "ControlSite.h"

/// A window with a button and two editors side by side: what an instrument-control program with two instruments has.
class HostWindow {
 public:
  HostWindow();
  ~HostWindow();
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  /// Whether both editors could be made.
  bool isComplete() const { return left_ != nullptr && right_ != nullptr; }
  HWND window() const { return window_; }
  HWND button() const { return button_; }
  ControlSite& left() { return *left_; }
  ControlSite& right() { return *right_; }
  /// What the editors' events have told.
  const std::vector<EditorError>& errors() const { return errors_; }

  void load(const std::wstring& catalogue, const std::wstring& cycle);
  static std::wstring cycleOf(ControlSite& site);

  /// Deals with one message: the editors are asked first, then the window's own keys.
  void dispatch(MSG& message);
  /// Until the window is closed.
  void run();

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void connect(ControlSite& site, ControlSite& other);
  void layOut();
  /// The Tab key goes around: the button, the left editor, the right one.
  void focusButton();
  static void focus(ControlSite& site);

  HWND window_ = nullptr;
  HWND button_ = nullptr;
  ControlSite* left_ = nullptr;
  ControlSite* right_ = nullptr;
  std::vector<EditorError> errors_;
};
