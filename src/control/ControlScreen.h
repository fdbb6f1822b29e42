#pragma once

#include "panels/VariableDialogScreen.h"
#include "platform/Button.h"
#include "platform/ComboBox.h"
#include "platform/Frame.h"
#include "platform/ItemListBox.h"
#include "platform/LineListBox.h"
#include "platform/PopupMenu.h"
#include "platform/TextBox.h"
#include "platform/Timer.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// The child controls of the editor's screen, made and owned by an edition. They outlive the editor control.
struct ControlScreen {
  platform::Frame& fraCyclePart;           ///< around the four parts of the cycle below
  platform::Frame& fraDescription;         ///< in fraCyclePart
  platform::TextBox& txtCycleDescription;  ///< in fraDescription; several lines
  platform::Frame& fraAtom;                ///< in fraCyclePart
  platform::LineListBox& lstAtomSequence;  ///< in fraAtom, and its three buttons
  platform::Button& cmdInset;
  platform::Button& cmdReplace;
  platform::Button& cmdDelete;
  platform::Frame& fraVariables;        ///< in fraCyclePart
  platform::ItemListBox& lstVariables;  ///< in fraVariables, and its two buttons
  platform::Button& cmdIns;
  platform::Button& cmdDel;
  platform::Frame& fraSelectedMacro;  ///< around the atom picker and the parameter grid
  platform::ComboBox& cboAtom;
  platform::ValueListActiveX& GrdAtom;
  platform::Button& cmdDefault;
  platform::PopupMenu& mnuSubParam;  ///< the items of the pop-up menu mnuParam
  platform::Timer& tmrUpdateGrid;
  platform::Timer& tmrTypingPause;         ///< how long ago the operator typed into the description
  VariableDialogFactory& variableDialogs;  ///< makes the window of the variable dialog
};

}  // namespace mavCycEd
