#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "memory/Control.h"
#include "platform/ComboBox.h"
#include "text/FirstIndex.h"

namespace mavCycEd::memory {

/// A combo box without a screen.
class MemoryComboBox : public platform::ComboBox, public Control {
 public:
  using Control::Control;

  void setEvents(platform::ComboBoxEvents events) override { events_ = std::move(events); }
  void clear() override { assign({}); }
  void assign(std::vector<std::string> items) override;
  void addItem(std::string_view text) override { items_.emplace_back(text); }
  int itemCount() const override { return static_cast<int>(items_.size()); }
  std::string itemText(int index) const override;
  int index() const override { return index_; }
  void setIndex(int index) override;
  std::string text() const override { return text_; }
  void setText(std::string_view text) override;

  /// The user types a text, which may be no item, in one change.
  void type(std::string_view text);
  /// The keyboard focus moves away.
  void leave();
  const std::vector<std::string>& items() const { return items_; }

 private:
  void show(std::string_view text);

  platform::ComboBoxEvents events_;
  std::vector<std::string> items_;
  text::FirstIndex places_;
  int index_ = -1;
  std::string text_;
};

}  // namespace mavCycEd::memory
