#include "control/ScreenStart.h"

namespace mavCycEd {

void setUpScreen(const ControlScreen& screen) {
  screen.fraCyclePart.setCaption("Cycle ");
  screen.fraDescription.setCaption("Description");
  screen.fraAtom.setCaption("Atom Sequence");
  screen.cmdInset.setCaption("In&sert ");
  screen.cmdReplace.setCaption("&Replace");
  screen.cmdDelete.setCaption("De&lete");
  screen.fraVariables.setCaption("Cycle Variables");
  screen.cmdIns.setCaption("&Insert ");
  screen.cmdDel.setCaption("D&elete");
  screen.fraSelectedMacro.setCaption("Selected Atom");
  screen.GrdAtom.setCaption("Atom Parameters");
  screen.cmdDefault.setCaption("&Default");
  screen.mnuSubParam.setCaption("Params");

  screen.GrdAtom.setCellFont(screen.GrdAtom.font());
  screen.lstVariables.setItemFont(screen.lstVariables.font());
  screen.GrdAtom.setColumnTitle(0, "Parameter");
  screen.GrdAtom.setColumnTitle(1, "Value");
  screen.tmrUpdateGrid.setEnabled(false);
  screen.tmrTypingPause.setEnabled(false);
}

void disconnectScreen(const ControlScreen& screen) {
  screen.txtCycleDescription.setEvents({});
  screen.lstAtomSequence.setEvents({});
  screen.lstAtomSequence.clear();  // what it shows is the control's
  screen.cmdInset.setEvents({});
  screen.cmdReplace.setEvents({});
  screen.cmdDelete.setEvents({});
  screen.lstVariables.setEvents({});
  screen.cmdIns.setEvents({});
  screen.cmdDel.setEvents({});
  screen.cboAtom.setEvents({});
  screen.GrdAtom.setEvents({});
  screen.cmdDefault.setEvents({});
  screen.mnuSubParam.setEvents({});
  screen.tmrUpdateGrid.setEvents({});
  screen.tmrTypingPause.setEvents({});
}

}  // namespace mavCycEd
