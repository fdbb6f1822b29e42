#include "memory/HeadlessEditor.h"

namespace mavCycEd::memory {

ControlScreen MemoryScreen::controls() {
  return {fraCyclePart, fraDescription, txtCycleDescription, fraAtom,        lstAtomSequence,
          cmdInset,     cmdReplace,     cmdDelete,           fraVariables,   lstVariables,
          cmdIns,       cmdDel,         fraSelectedMacro,    cboAtom,        GrdAtom,
          cmdDefault,   mnuSubParam,    tmrUpdateGrid,       variableDialogs};
}

}  // namespace mavCycEd::memory
