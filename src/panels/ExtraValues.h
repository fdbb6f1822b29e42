#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "mavCycEd/Cycle.h"
#include "panels/GridState.h"
#include "platform/ErrorSink.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// Offers the cycle variables as values of the grid rows whose unit they have, and withdraws them again.
class ExtraValues {
 public:
  ExtraValues(platform::ValueListActiveX& GrdAtom, GridState& state, const Cycle& cycle, ErrorSink& errors)
      : grdAtom_(GrdAtom), state_(state), cycle_(cycle), errors_(errors) {}

  /// Offers a variable. An entry without ";" is ignored.
  void Add_Extra_Udons(const VariableDefinition& variable);
  /// Withdraws a variable. A row that holds it as its value shows the value again that it was filled with.
  void Delete_Extra_Udons(const VariableDefinition& variable);
  /// Offers all variables of the cycle, after the grid was refilled. One that cannot be offered is reported under
  /// Add_Extra_Udons, and keeps no other back.
  void Update_Extra_Params();
  /// Lets the rows offer the cycle's variables as they are now, whichever they offered before. The values stay.
  void followVariables();

  /// While one of these lives Update_Extra_Params() waits; what the last call would have done is done at the end. For
  /// loading many atom lines, each of which fills the grid anew.
  class Hold {
   public:
    explicit Hold(ExtraValues& values) : values_(values) { ++values_.held_; }
    ~Hold();
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    ExtraValues& values_;
  };

 private:
  void doWhatWasPutOff();
  void offerFirst(std::size_t variables);
  void offer(std::string_view names, std::string_view unit);
  int lastRow() const;
  template <typename Change>
  void forEachFittingRow(std::string_view unit, const Change& change);

  platform::ValueListActiveX& grdAtom_;
  GridState& state_;
  const Cycle& cycle_;
  ErrorSink& errors_;
  int held_ = 0;
  std::size_t putOff_ = 0;  // the number of variables there were at the last call that waits
};

}  // namespace mavCycEd
