#pragma once

#include "rules/ParamRowTable.h"

namespace mavCycEd {

/// What one control knows of its parameter grid beside the grid itself.
struct GridState {
  ParamRowTable rows;  ///< the facts about each parameter row
  bool ready = false;  ///< the grid ready flag: the grid holds a complete parameter set
  int currentRow = 0;  ///< the current grid row: the one that offered values go to
  int LastMouseX = 0;  ///< where the primary button was last pressed, in the grid's own units
  int LastMouseY = 0;
};

}  // namespace mavCycEd
