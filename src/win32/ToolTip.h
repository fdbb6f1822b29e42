#pragma once

#include <string>

#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// The tool tip of a window.
class ToolTip {
 public:
  explicit ToolTip(HWND window);
  ~ToolTip();
  ToolTip(const ToolTip&) = delete;
  ToolTip& operator=(const ToolTip&) = delete;

  /// An empty text: no tip.
  void setText(const std::string& text);

 private:
  TTTOOLINFOW description() const;

  HWND window_;
  HWND tip_;
  std::wstring text_;
};

}  // namespace mavCycEd::win32
