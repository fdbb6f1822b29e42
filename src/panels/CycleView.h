#pragma once

#include <utility>
#include <vector>

#include "panels/CycleState.h"
#include "panels/ExtraValues.h"
#include "platform/ErrorSink.h"

namespace mavCycEd {

/// Shows what changes in the cycle: the variables and, unless a procedure shows them itself, the lines and the
/// description.
class CycleView : public CycleListener {
 public:
  CycleView(CycleState& cycle, const CycleScreen& screen, ExtraValues& extraValues, ErrorSink& errors);
  ~CycleView() override;
  CycleView(const CycleView&) = delete;
  CycleView& operator=(const CycleView&) = delete;

  void cycleChanged(const CycleNotice& notice) override;
  void historyChanged() noexcept override { historyHasChanged_ = true; }
  /// Whether the history has changed since this was asked last.
  bool takeHistoryChanged() { return std::exchange(historyHasChanged_, false); }

  /// Shows the lines anew after these changes, in their order, indented in their blocks. The selection follows its
  /// line, where the list has shown all lines so far.
  void lstRefresh(const std::vector<CycleNotice::Range>& changes);
  /// The same as a part of another procedure.
  void showLines(const std::vector<CycleNotice::Range>& changes);

  /// A line that is followed through the changes, -1 for none: it is none any more when it has gone or was changed.
  void followLine(int line) { followed_ = line; }
  int followedLine() const { return followed_; }

  /// While one of these lives, a procedure shows what it changes itself: the lines of the sequence with the selection
  /// that belongs to its command, the description that was typed, what the parameter rows offer.
  class ShownByProcedure {
   public:
    explicit ShownByProcedure(CycleView& view) : view_(view) { ++view_.shownByProcedure_; }
    ~ShownByProcedure() { --view_.shownByProcedure_; }
    ShownByProcedure(const ShownByProcedure&) = delete;
    ShownByProcedure& operator=(const ShownByProcedure&) = delete;

   private:
    CycleView& view_;
  };

 private:
  void showAll();
  void showVariables(const CycleNotice::Range& range);
  void follow(const CycleNotice::Range& range);

  CycleState& cycle_;
  CycleScreen screen_;
  ExtraValues& extraValues_;
  ErrorSink& errors_;
  int shownByProcedure_ = 0;
  int followed_ = -1;
  bool historyHasChanged_ = false;
};

}  // namespace mavCycEd
