#include "memory/HeadlessEditor.h"

namespace mavCycEd::memory {

ControlScreen MemoryScreen::controls() {
  return {.fraCyclePart = fraCyclePart,
          .fraDescription = fraDescription,
          .txtCycleDescription = txtCycleDescription,
          .fraAtom = fraAtom,
          .lstAtomSequence = lstAtomSequence,
          .cmdInset = cmdInset,
          .cmdReplace = cmdReplace,
          .cmdDelete = cmdDelete,
          .fraVariables = fraVariables,
          .lstVariables = lstVariables,
          .cmdIns = cmdIns,
          .cmdDel = cmdDel,
          .fraSelectedMacro = fraSelectedMacro,
          .cboAtom = cboAtom,
          .GrdAtom = GrdAtom,
          .cmdDefault = cmdDefault,
          .mnuSubParam = mnuSubParam,
          .tmrUpdateGrid = tmrUpdateGrid,
          .tmrTypingPause = tmrTypingPause,
          .variableDialogs = variableDialogs};
}

}  // namespace mavCycEd::memory
