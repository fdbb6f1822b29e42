#pragma once

#include <string>
#include <utility>
#include <vector>

#include "kit/CommandGate.h"
#include "kit/TypeAhead.h"
#include "platform/ComboBox.h"
#include "text/FirstIndex.h"
#include "win32/NativeWindow.h"
#include "win32/Typing.h"

namespace mavCycEd::win32 {

/// A combo box, either to pick from only, or one that also takes a typed text. A text that is no item is drawn all the
/// same where nothing can be typed.
class Win32ComboBox : public platform::ComboBox, public NativeWindow {
 public:
  enum class Mode { PickOnly, TypedToo };
  Win32ComboBox(const kit::CommandGate& gate, Mode mode, HWND parent, Win32Frame* frame);

  void setEvents(platform::ComboBoxEvents events) override { events_ = std::move(events); }
  void clear() override { assign({}); }
  void assign(std::vector<std::string> items) override;
  void addItem(std::string_view text) override;
  int itemCount() const override { return static_cast<int>(items_.size()); }
  std::string itemText(int index) const override;
  int index() const override { return index_; }
  void setIndex(int index) override;
  std::string text() const override { return text_; }
  void setText(std::string_view text) override;

  const std::vector<std::string>& items() const { return items_; }
  /// How high the box is while its list is closed.
  int neededHeight() const;
  void setScreenFont(const FontHandle& font, int dpi) override;

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void onCommand(int notification) override;
  void onDraw(const DRAWITEMSTRUCT& item) override;
  void onPosted(int what) override;

 private:
  enum Posted { Picked, MaybeLeft };
  void show(int index, std::string text);
  void showNow();
  void takeTyped(const std::string& typed);
  void searchFor(wchar_t character);
  void fitList();

  const kit::CommandGate& gate_;
  Mode mode_;
  platform::ComboBoxEvents events_;
  std::vector<std::string> items_;
  text::FirstIndex places_;
  int index_ = -1;
  std::string text_;
  bool showing_ = false;
  int picked_ = -1;  // by the user, and not told yet
  kit::TypeAhead typeAhead_{typingPause};
};

}  // namespace mavCycEd::win32
