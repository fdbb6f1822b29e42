#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "com/ControlWindow.h"
#include "com/Events.h"
#include "com/Lifetime.h"
#include "win32/Win32Editor.h"

namespace mavCycEd::com {

/// The editor of one control and its window. Both are made when they are first needed: a host may call members before
/// the control stands in a container, or without one.
class EditorSession {
 public:
  EditorSession(Lifetime& lifetime, Events& events) : lifetime_(lifetime), events_(events) {}

  /// For a call of the host's that only asks, maybe from a timer, or sets what is used later: a value that is being
  /// typed stays as it is.
  EditorControl& editor() { return editorOnScreen().control(); }
  /// For a call of the host's that changes what is shown or takes the cycle: a value that is being typed is finished
  /// first.
  EditorControl& settledEditor();

  win32::EditorScreen& screen() { return editorOnScreen().screen(); }
  ControlWindow& window();
  bool hasWindow() const { return static_cast<bool>(window_); }

  void setMouseActivated(std::function<void()> handler) { mouseActivated_ = std::move(handler); }
  /// Who is told that a message box or the dialog opens (true), has closed (false).
  void setModal(std::function<void(bool open)> handler) { modal_ = std::move(handler); }

 private:
  win32::Win32Editor& editorOnScreen();
  void modalChanged(bool open);

  Lifetime& lifetime_;
  Events& events_;
  std::function<void()> mouseActivated_;
  std::function<void(bool)> modal_;
  std::vector<std::unique_ptr<Lifetime::StayWhileModal>> stays_;
  std::unique_ptr<win32::Win32Editor> editor_;
  std::unique_ptr<ControlWindow> window_;
};

}  // namespace mavCycEd::com
