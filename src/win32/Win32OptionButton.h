#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "kit/CommandGate.h"
#include "platform/OptionButton.h"
#include "win32/NativeWindow.h"

namespace mavCycEd::win32 {

/// An option button.
class Win32OptionButton : public platform::OptionButton, public NativeWindow {
 public:
  enum class Place { FirstOfGroup, InGroup };
  Win32OptionButton(const kit::CommandGate& gate, Place place, HWND parent, Win32Frame* frame);

  /// Makes these the options of one group.
  static void group(std::initializer_list<Win32OptionButton*> options);

  void setEvents(platform::OptionButtonEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  bool value() const override { return selected_; }
  void select() override;

  int neededWidth() const;

 protected:
  void onCommand(int notification) override;
  void onPosted(int what) override;

 private:
  void show();

  const kit::CommandGate& gate_;
  platform::OptionButtonEvents events_;
  std::string caption_;
  bool selected_ = false;
  std::vector<Win32OptionButton*> group_;
};

}  // namespace mavCycEd::win32
