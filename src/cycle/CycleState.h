#pragma once

#include <cstdint>
#include <memory>

#include "catalogue/cAtoms.h"
#include "platform/ListBox.h"
#include "platform/TextBox.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// The cycle of one control, as far as it is not on the screen.
struct CycleState {
  cAtoms atoms;                                      ///< the atom lines, in sequence order
  std::unique_ptr<platform::XmlDocument> working;    ///< the cycle to load; null before the first one
  std::unique_ptr<platform::XmlDocument> reference;  ///< what the cycle is compared with: loaded or last handed back
  bool changed = false;                              ///< the changed flag
  std::int16_t displayIndent = 1;                    ///< the indent, in spaces, of the next display line
};

/// The parts of the screen that hold the rest of the cycle.
struct CycleScreen {
  platform::TextBox& txtCycleDescription;
  platform::ListBox& lstVariables;     ///< one item per cycle variable: its definition text
  platform::ListBox& lstAtomSequence;  ///< one display line per atom line
};

}  // namespace mavCycEd
