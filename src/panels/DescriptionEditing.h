#pragma once

#include "panels/CycleState.h"
#include "panels/CycleView.h"
#include "platform/ErrorSink.h"
#include "platform/Timer.h"

namespace mavCycEd {

/// What the operator types into the description. A stretch of typing is one step; it ends with a pause of a second,
/// when the focus leaves the box, and with any other command.
class DescriptionEditing {
 public:
  DescriptionEditing(CycleState& cycle, const CycleScreen& screen, CycleView& view, platform::Timer& tmrTypingPause,
                     ErrorSink& errors)
      : cycle_(cycle), screen_(screen), view_(view), tmrTypingPause_(tmrTypingPause), errors_(errors) {}

  void txtCycleDescription_Change();
  void txtCycleDescription_LostFocus() { endStretch(); }
  void tmrTypingPause_Timer() { endStretch(); }
  /// What is typed from now on is another step.
  void endStretch();

 private:
  CycleState& cycle_;
  CycleScreen screen_;
  CycleView& view_;
  platform::Timer& tmrTypingPause_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
