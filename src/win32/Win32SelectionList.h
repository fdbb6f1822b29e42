#pragma once

#include <string>
#include <vector>

#include "platform/SelectionList.h"
#include "win32/NativeWindow.h"

namespace mavCycEd::win32 {

/// A list of texts with check boxes. A click anywhere on an item toggles it, and so does the space bar.
class Win32SelectionList : public platform::SelectionList, public NativeWindow {
 public:
  Win32SelectionList(HWND parent, Win32Frame* frame);

  void clear() override;
  void addItem(std::string_view text, bool selected) override;
  int itemCount() const override { return static_cast<int>(items_.size()); }
  std::string itemText(int index) const override { return items_[checked(index)].text; }
  bool isSelected(int index) const override { return items_[checked(index)].selected; }

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  LRESULT onNotify(const NMHDR& notification) override;

 private:
  struct Item {
    std::string text;
    bool selected;
  };
  std::size_t checked(int index) const;
  void toggle(LPARAM place);
  void fitColumn() const;

  std::vector<Item> items_;
  bool filling_ = false;
};

}  // namespace mavCycEd::win32
