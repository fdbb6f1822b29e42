#pragma once

#include <string>
#include <string_view>

#include "paramgrid/GridState.h"
#include "platform/ErrorSink.h"
#include "platform/ListBox.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// Offers the cycle variables as values of the grid rows whose unit they have, and withdraws them again. A variable is
/// known by the text of its entry: name, its unit in parentheses, and further fields separated by ";". A unit "()"
/// stands for "None"; an entry without parentheses (a variable for objects) fits the rows without a unit.
class ExtraValues {
 public:
  ExtraValues(platform::ValueListActiveX& GrdAtom, GridState& state, const platform::ListBox& lstVariables,
              ErrorSink& errors)
      : grdAtom_(GrdAtom), state_(state), lstVariables_(lstVariables), errors_(errors) {}

  /// Offers a variable. An entry without ";" is ignored.
  void Add_Extra_Udons(std::string_view variable);
  /// Withdraws a variable. A row that holds it as its value shows the value again that it was filled with.
  void Delete_Extra_Udons(std::string_view variable);
  /// Offers all variables of the cycle, after the grid was refilled. One that cannot be offered is reported under
  /// Add_Extra_Udons, and keeps no other back.
  void Update_Extra_Params();

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
  void offerFirst(int variables);
  void offer(std::string_view names, std::string_view unit);
  template <typename Change>
  void forEachFittingRow(std::string_view unit, const Change& change);

  platform::ValueListActiveX& grdAtom_;
  GridState& state_;
  const platform::ListBox& lstVariables_;
  ErrorSink& errors_;
  int held_ = 0;
  int putOff_ = 0;  // the number of variables there were at the last call that waits
};

}  // namespace mavCycEd
