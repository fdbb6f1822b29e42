#pragma once

#include <QWidget>
#include <memory>

#include "control/ControlScreen.h"
#include "kit/CommandGate.h"
#include "qt/HelpDesk.h"
#include "qt/QtButton.h"
#include "qt/QtComboBox.h"
#include "qt/QtFrame.h"
#include "qt/QtListBox.h"
#include "qt/QtPopupMenu.h"
#include "qt/QtTextBox.h"
#include "qt/QtValueList.h"
#include "qt/QtVariableDialog.h"

namespace mavCycEd::qt {

/// Destroys a widget at once, or later, where it may be in the middle of an event.
struct WidgetRelease {
  bool later = false;
  void operator()(QWidget* widget) const;
};

/// The screen of the editor: its child controls, and where they stand in the control's widget.
class EditorScreen {
 public:
  /// Fills `control` with widgets, which the screen owns. Without a grid timer the screen has its own, which gives way
  /// to an operator who works in the grid already.
  EditorScreen(QWidget& control, std::shared_ptr<platform::Timer> gridTimer,
               std::shared_ptr<platform::Timer> typingTimer);

  /// The control goes while one of its procedures is still running: the widgets leave it, the dialog's with them, and
  /// stay until the event that they are answering has been dealt with.
  void outliveControl();

  ControlScreen controls();

  /// What commands pass before they run.
  const kit::CommandGate& gate() const { return gate_; }

  HelpDesk& help() { return help_; }

 private:
  void layOut();
  void layOutSelectedMacro();
  void layOutAtoms();
  void layOutVariables();
  void connectKeys();
  void setTabOrder();
  void nameForPeople();
  HelpPage helpPage() const;

  QWidget& control_;
  std::unique_ptr<QWidget, WidgetRelease> content_;  // all widgets are in it; it goes last
  kit::CommandGate gate_;
  QtFrame fraSelectedMacro_{"fraSelectedMacro", content_.get()};
  QtComboBox cboAtom_{gate_, QtComboBox::Mode::PickOnly, "cboAtom", fraSelectedMacro_.widget()};
  QtValueList GrdAtom_{"GrdAtom", fraSelectedMacro_.widget()};
  QtButton cmdDefault_{gate_, "cmdDefault", fraSelectedMacro_.widget()};
  QtFrame fraCyclePart_{"fraCyclePart", content_.get()};
  QtFrame fraDescription_{"fraDescription", fraCyclePart_.widget()};
  QtTextBox txtCycleDescription_{"txtCycleDescription", fraDescription_.widget()};
  QtFrame fraAtom_{"fraAtom", fraCyclePart_.widget()};
  QtLineListBox lstAtomSequence_{gate_, "lstAtomSequence", fraAtom_.widget()};
  QtButton cmdInset_{gate_, "cmdInset", fraAtom_.widget()};
  QtButton cmdReplace_{gate_, "cmdReplace", fraAtom_.widget()};
  QtButton cmdDelete_{gate_, "cmdDelete", fraAtom_.widget()};
  QtFrame fraVariables_{"fraVariables", fraCyclePart_.widget()};
  QtItemListBox lstVariables_{gate_, "lstVariables", fraVariables_.widget()};
  QtButton cmdIns_{gate_, "cmdIns", fraVariables_.widget()};
  QtButton cmdDel_{gate_, "cmdDel", fraVariables_.widget()};
  QtPopupMenu mnuSubParam_{gate_, "mnuParam", content_.get()};
  std::shared_ptr<platform::Timer> tmrUpdateGrid_;
  std::shared_ptr<platform::Timer> tmrTypingPause_;
  HelpDesk help_{control_};
  HelpKey helpKey_{control_, [this] { help_.show(helpPage()); }};
  QtVariableDialogs variableDialogs_{control_, help_};
};

}  // namespace mavCycEd::qt
