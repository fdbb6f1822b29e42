#pragma once

#include <functional>
#include <utility>

namespace mavCycEd::kit {

/// What every command of an edition with windows passes before it runs, whether a user or the host gives it: an edit
/// that is still open in the window's grid ends first, so that its value is checked and nothing typed is lost.
class CommandGate {
 public:
  /// How the open edit ends.
  void setEndEdit(std::function<void()> endEdit) { endEdit_ = std::move(endEdit); }

  /// Ends the open edit, if there is one. The edit's end is told to the editor, whose answer may destroy the control.
  void pass() const {
    if (const auto endEdit = endEdit_) endEdit();
  }

 private:
  std::function<void()> endEdit_;
};

}  // namespace mavCycEd::kit
