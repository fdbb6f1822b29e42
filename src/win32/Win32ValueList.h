#pragma once

#include <string_view>

#include "kit/ValueListPort.h"
#include "win32/ValueListView.h"
#include "win32/Win32Label.h"

namespace mavCycEd::win32 {

/// A value list: a caption and a grid of keys and values.
class Win32ValueList : public kit::ValueListPort {
 public:
  Win32ValueList(HWND parent, Win32Frame* frame);

  Win32Label& label() { return label_; }
  ValueListView& view() { return view_; }

  void setCaption(std::string_view caption) override;
  void setToolTipText(std::string_view text) override;
  platform::Font font() const override { return view_.font(); }
  void setCellFont(const platform::Font& font) override { view_.setFont(font); }

 private:
  Win32Label label_;
  ValueListView view_;
};

}  // namespace mavCycEd::win32
