#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mavCycEd/Cycle.h"
#include "mavCycEd/CycleEdit.h"

namespace mavCycEd {

/// Where an operator stands in a cycle: the selected line and the selected variable, from 0; -1 for none. The document
/// keeps it with every step and asks nothing else of it.
struct CycleSelection {
  int line = -1;
  int variable = -1;
  friend bool operator==(const CycleSelection&, const CycleSelection&) = default;
};

/// What has changed in a cycle.
struct CycleNotice {
  struct Range {
    std::size_t at = 0;
    std::size_t removed = 0;
    std::size_t added = 0;
  };

  bool loaded = false;  ///< there is another cycle; the rest says nothing then
  /// In the order in which they came about: each counts positions as they were after the one before.
  std::vector<Range> lines;
  std::vector<Range> variables;
  bool description = false;
  bool places = false;  ///< something that belongs to positions

  /// One range that covers several; `ranges` is not empty.
  static Range covering(const std::vector<Range>& ranges);
};

/// Hears of the changes of a document.
class CycleListener {
 public:
  virtual ~CycleListener() = default;

  /// The cycle has changed, and reads as it does now. The listener may ask the document anything, and may edit it only
  /// when it has nothing to show any more. What it throws reaches whoever made the change, which stands.
  virtual void cycleChanged(const CycleNotice& notice) = 0;
  /// There is another step to be taken back or brought again, or none any more.
  virtual void historyChanged() noexcept {}
};

/// A cycle that is being edited, and the only way to change it: every change is an edit, every edit belongs to a step
/// that can be taken back (undo) and brought again (redo). The history keeps the last 10,000 steps.
///
/// One thread at a time.
class CycleDocument {
 public:
  /// Stands for one state of the cycle: two states of one document with the same number are the same cycle. Taking a
  /// step back brings back the number as well.
  using Revision = std::uint64_t;

  CycleDocument() = default;
  CycleDocument(const CycleDocument&) = delete;
  CycleDocument& operator=(const CycleDocument&) = delete;

  const Cycle& cycle() const { return cycle_; }
  Revision revision() const { return revision_; }

  /// Puts another cycle in place of this one; the history is empty then.
  void load(Cycle cycle);

  /// Carries an edit out: as a part of the transaction that is open, or as a step of its own. An edit that changes
  /// nothing makes no step. One that does not fit the cycle is std::out_of_range, and changes nothing.
  void perform(CycleEdit edit, std::string_view stepName = {});

  /// The name of the next step to be taken back, or brought again; nothing where there is none.
  std::optional<std::string> undoName() const;
  std::optional<std::string> redoName() const;
  /// Takes the last step back; the selection that was there before it, or nothing when there is no step, or a
  /// transaction is open.
  std::optional<CycleSelection> undo();
  /// Brings the step again that was taken back last; the selection that was there behind it.
  std::optional<CycleSelection> redo();

  /// A listener is removed before it goes.
  void addListener(CycleListener& listener);
  void removeListener(CycleListener& listener);

  /// Makes the edits of its lifetime one step, of which it knows the selections around it. One inside another one is a
  /// part of that. Without an edit there is no step.
  class Transaction {
   public:
    /// A stretch of typing goes on the step of its name where that is the last one, a stretch itself and not sealed.
    enum class Kind { Step, Stretch };
    Transaction(CycleDocument& document, std::string_view stepName, CycleSelection before, Kind kind = Kind::Step);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Where the operator stands when the step is done; without it, where they stood before.
    void setAfter(CycleSelection after);

   private:
    CycleDocument& document_;
  };

  /// The last stretch is over: the next one is a step of its own.
  void sealStretch() { stretchIsOpen_ = false; }

  /// While one of these lives, edits belong to the loading of a cycle: they make no steps, and the history is empty.
  class Loading {
   public:
    explicit Loading(CycleDocument& document);
    ~Loading() { --document_.loading_; }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;

   private:
    CycleDocument& document_;
  };

 private:
  struct Step {
    std::string name;
    CycleEdit edit;  // leads to the other side of the step
    CycleSelection before;
    CycleSelection after;
    Revision revisionBefore = 0;
    Revision revisionAfter = 0;
  };

  void begin(std::string_view stepName, CycleSelection before, Transaction::Kind kind);
  void end() noexcept;
  void keep(Step&& step);
  CycleNotice record(CycleEdit inverse, Revision before);
  void joinStretch(Step& last, Step&& more);
  CycleSelection wentTo(Revision revision, CycleSelection selection, const CycleEdit& inverse);
  void forgetHistory();
  void tell(const CycleNotice& notice);
  void tellHistory() noexcept;

  static constexpr std::size_t mostSteps = 10'000;

  Cycle cycle_;
  Revision revision_ = 0;
  Revision lastRevision_ = 0;  // the highest that was ever given
  std::deque<Step> done_;
  std::deque<Step> undone_;
  std::optional<Step> open_;
  std::vector<CycleEdit> openEdits_;  // of the open step, each as its inverse, in the order they were made
  Transaction::Kind openKind_ = Transaction::Kind::Step;
  int depth_ = 0;  // of transactions inside each other
  int loading_ = 0;
  bool stretchIsOpen_ = false;
  std::vector<CycleListener*> listeners_;
};

}  // namespace mavCycEd
