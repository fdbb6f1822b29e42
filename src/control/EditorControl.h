#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "catalogue/AtomListProvider.h"
#include "catalogue/cAtoms.h"
#include "control/ControlScreen.h"
#include "control/CycleEditorErrorEvent.h"
#include "control/PlatformServices.h"
#include "mavCycEd/CycleDocument.h"
#include "rules/ParamRowTable.h"

namespace mavCycEd {

/// The editor control without a window: its public interface, its state, and the procedures behind its screen. An
/// edition makes the screen and the services and gives them to this class; everything else happens here.
///
/// All members run on the user-interface thread. No exception leaves a member: failures reach the host through the
/// CycleEditorError handler, while the procedure that failed is still on its way back.
///
/// A handler, and whatever runs while a message box or the dialog is open, may call every member and may destroy the
/// control. SetXMLStrings is then put off until the procedure that is running has ended; of several calls the last one
/// counts, and one whose own events ask for the next one, time and again, is given up after a while. So are events that
/// come of what a handler does in an event. A control that is destroyed closes its dialog, tells nothing more, and lets
/// the running procedure end on a screen that nobody sees.
class EditorControl {
 public:
  /// Starts the control on a screen: captions and titles are set, the timer is off, nothing is loaded. Without a
  /// provider the control makes its own, which draws on the configuration text. `owner` keeps the screen and the
  /// services alive; it is released when the control is destroyed and its last procedure has ended. Without an owner
  /// they have to live that long by themselves.
  EditorControl(const ControlScreen& screen, const PlatformServices& services, CycleEditorErrorHandler onError,
                std::shared_ptr<AtomListProvider> provider = nullptr, std::shared_ptr<void> owner = nullptr);
  ~EditorControl();
  EditorControl(const EditorControl&) = delete;
  EditorControl& operator=(const EditorControl&) = delete;

  /// Stores the configuration document; it is parsed when a question needs it.
  void SetConfigXML(std::string strConfigXml);
  /// Loads the catalogue and a cycle (a cycle document, a macro text, or nothing) and fills the screen. Whatever was
  /// loaded before is gone. From inside one of the control's own events it is put off; see above.
  void SetXMLStrings(std::string_view strLatestKam, std::string_view strCycle);
  /// True: the configuration's further atoms and the catalogue's objects that are marked as hidden are offered all the
  /// same; it takes effect at the next SetXMLStrings.
  void Ignore_Hidden(bool booNewValue);
  /// Whether the cycle that the editor would now produce differs from the one loaded or last handed back.
  bool CycleChanged();
  /// The edited cycle as a cycle document; empty when the sequence is empty. It becomes what CycleChanged compares
  /// with.
  std::string RetrieveCycle();
  /// Replaces the working cycle document; the screen stays as it is.
  void ResetCycle(std::string_view strCycle);

  /// The edited cycle as a macro text, without its header; empty when it cannot be written. See MacroText.
  std::string MacroString();
  /// Whether every row of the parameter grid holds a valid value; if not, `message` names the first one that does not.
  bool ParamValueControl(std::string& message);

  /// Takes the last step of the operator back, or brings it again: lines, variables, description, and the selection
  /// that was there. False where there is no step, and while a procedure is running. No message is shown by this.
  bool Undo();
  bool Redo();
  /// What the next such step is called ("Insert"); nothing where there is none.
  std::optional<std::string> undoText() const;
  std::optional<std::string> redoText() const;
  /// What is called when one of these texts has changed: behind the procedure that changed it.
  void setHistoryChanged(std::function<void()> historyChanged);

  /// The cycle as it stands.
  const Cycle& cycle() const;
  /// Changes the cycle as a program, in one step that the operator can take back under this name; the screen follows. A
  /// selected line that is changed by it is shown in the grid again. False, and nothing changed, where the edit does
  /// not fit the cycle or changes nothing, and while a procedure is running.
  bool Perform(CycleEdit edit, std::string_view stepName);
  /// The atom lines as records, in sequence order: a copy.
  cAtoms atoms() const;
  /// What is known of the grid's parameter rows.
  const ParamRowTable& parameterRows() const;
  /// The changed flag as it stands, without recomputing it.
  bool changedFlag() const;
  /// False while the grid is being refilled.
  bool gridReady() const;
  /// The grid row that the pop-up menu's choices go to.
  int currentGridRow() const;
  /// Whether a procedure is running at this moment: the caller is one of the control's own events.
  bool isRunning() const;

 private:
  class Implementation;
  std::shared_ptr<Implementation> implementation_;
};

}  // namespace mavCycEd
