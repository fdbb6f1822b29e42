#include "panels/ParamGrid.h"

#include <string>

namespace mavCycEd {

void ParamGrid::FillDefaultParams(std::string_view atomName) {
  guarded(errors_, "FillDefaultParams", [&] {
    CleanGrdAtom();
    state_.rows.resize(rows_.childrenOf(atomName));
    // The texts first: an error on the way is reported to the host, which may load another catalogue then.
    const ValueList definitions = rows_.definitionsOf(atomName);
    for (const std::string& definition : definitions) FillParams(definition, newestRow() + 1);
    const ValueList further = rows_.furtherDefinitionsOf(atomName);
    state_.rows.grow(static_cast<int>(further.size()));
    for (const std::string& definition : further) FillParams(definition, newestRow() + 1);
  });
}

void ParamGrid::FillParams(std::string_view definition, int row) {
  guarded(errors_, "FillParams", [&] {
    const ParameterDefinition parameter(definition);
    const UnitOfMeasure unit = rows_.unitOf(parameter);
    grdAtom_.InsertRow(ParameterRows::keyOf(parameter, unit), "", true);
    ParamRowInfo& info = state_.rows.row(row);
    const RowShows shows = rows_.describe(parameter, unit, info);
    if (shows.pickList) grdAtom_.setPickList(newestRow(), info.Items);
    if (shows.value) grdAtom_.setValue(1, newestRow(), textOf(info.Value));
  });
}

void ParamGrid::CleanGrdAtom() {
  guarded(errors_, "CleanGrdAtom", [this] {
    if (grdAtom_.RowCount() != 2 && grdAtom_.Row() >= 1) {
      for (int row = grdAtom_.RowCount() - 1; row >= 2; --row) grdAtom_.DeleteRow(row);
    }
    grdAtom_.setValue(0, 1, "");
    grdAtom_.setValue(1, 1, "");
    grdAtom_.DeleteRow(1);
  });
}

void ParamGrid::UpdateControls(CycleDocument& document) {
  guarded(errors_, "UpdateControls", [&] {
    CleanGrdAtom();
    document.load({});
  });
}

}  // namespace mavCycEd
