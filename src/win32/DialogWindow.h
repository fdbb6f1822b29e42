#pragma once

#include <functional>
#include <utility>

#include "win32/PanelWindow.h"

namespace mavCycEd::win32 {

/// The window of a modal dialog: its message loop, its frame, Enter and Esc.
class DialogWindow : public PanelWindow {
 public:
  /// `owner`: whose top-level window waits while the dialog is shown.
  explicit DialogWindow(HWND owner);
  ~DialogWindow() override;

  /// The user closes the window by its frame or with Esc; it closes when the handler has returned.
  void setClosing(std::function<void()> closing) { closing_ = std::move(closing); }
  /// What is called before the owner starts to wait (true) and after it has stopped (false).
  void setModality(std::function<void(bool)> modality) { modality_ = std::move(modality); }
  /// The button that Enter presses.
  void setDefaultButton(HWND button);

  /// Shows the window, the focus in `first`, and returns when it has closed.
  void run(HWND first);
  void close();
  bool isOpen() const { return open_; }

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void loop();
  void closeByUser();
  void center() const;

  HWND owner_;
  std::function<void()> closing_;
  std::function<void(bool)> modality_;
  bool open_ = false;
};

}  // namespace mavCycEd::win32
