#pragma once

#include <string_view>

#include "panels/CycleState.h"
#include "panels/CycleView.h"
#include "panels/GridState.h"
#include "platform/ErrorSink.h"

namespace mavCycEd {

/// Takes steps of the operator back and brings them again. No value is checked by this, and no message shown. The
/// selection comes back with the step; the line that it is on is shown in the grid again, unless it is the line that
/// was selected before and has not changed: what is typed there stays.
class EditHistory {
 public:
  EditHistory(CycleState& cycle, const CycleScreen& screen, GridState& grid, CycleView& view, ErrorSink& errors)
      : cycle_(cycle), screen_(screen), grid_(grid), view_(view), errors_(errors) {}

  /// False where there is no step.
  bool Undo();
  bool Redo();
  /// Carries out an edit that no command of the screen makes, as one step. False where it does not fit the cycle, or
  /// changes nothing.
  bool Perform(CycleEdit edit, std::string_view stepName);

 private:
  template <typename Go>
  bool go(std::string_view procedure, const Go& goThere);
  void select(CycleSelection wanted);

  CycleState& cycle_;
  CycleScreen screen_;
  GridState& grid_;
  CycleView& view_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
