#pragma once

#include <functional>
#include <utility>

#include "win32/HistoryKeys.h"
#include "win32/NativeWindow.h"

namespace mavCycEd::win32 {

/// The window that controls stand on: it hands back to them what the system tells it of them, and keeps their colours
/// and their layout.
class PanelWindow : public NativeWindow {
 public:
  PanelWindow(HWND parent, DWORD style, DWORD extendedStyle);

  /// How the contents are laid out; called when the size, the font or the scaling has changed.
  void setLayOut(std::function<void()> layOut) { layOut_ = std::move(layOut); }
  /// What happens when the window's scaling has changed.
  void setScalingChanged(std::function<void()> changed) { scalingChanged_ = std::move(changed); }
  void layOut();
  /// What F1 does in this window and in those on it.
  void setHelp(std::function<void(HWND)> help) { help_ = std::move(help); }

  /// What the keys for taking steps back do in this window and in those on it.
  void setHistory(std::function<void(HistoryStep)> history) { history_ = std::move(history); }

  void setColors(COLORREF background, COLORREF text);

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  HBRUSH brush() const;
  LRESULT colorOf(HDC context) const;

  std::function<void()> layOut_;
  std::function<void()> scalingChanged_;
  std::function<void(HWND)> help_;
  std::function<void(HistoryStep)> history_;
  bool hasColors_ = false;
  COLORREF background_ = 0;
  COLORREF text_ = 0;
  std::shared_ptr<std::remove_pointer_t<HBRUSH>> brush_;
};

}  // namespace mavCycEd::win32
