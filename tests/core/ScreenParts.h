#pragma once

#include "control/ControlScreen.h"

namespace mavCycEd::test {

/// The parts of a screen that a test puts its own in place of.
struct ScreenParts {
  platform::ItemListBox& lstVariables;
  platform::ValueListActiveX& GrdAtom;
  platform::Timer& tmrUpdateGrid;
};

/// A screen with these parts in place of its own.
inline ControlScreen withParts(const ControlScreen& made, const ScreenParts& parts) {
  return {.fraCyclePart = made.fraCyclePart,
          .fraDescription = made.fraDescription,
          .txtCycleDescription = made.txtCycleDescription,
          .fraAtom = made.fraAtom,
          .lstAtomSequence = made.lstAtomSequence,
          .cmdInset = made.cmdInset,
          .cmdReplace = made.cmdReplace,
          .cmdDelete = made.cmdDelete,
          .fraVariables = made.fraVariables,
          .lstVariables = parts.lstVariables,
          .cmdIns = made.cmdIns,
          .cmdDel = made.cmdDel,
          .fraSelectedMacro = made.fraSelectedMacro,
          .cboAtom = made.cboAtom,
          .GrdAtom = parts.GrdAtom,
          .cmdDefault = made.cmdDefault,
          .mnuSubParam = made.mnuSubParam,
          .tmrUpdateGrid = parts.tmrUpdateGrid,
          .tmrTypingPause = made.tmrTypingPause,
          .variableDialogs = made.variableDialogs};
}

}  // namespace mavCycEd::test
