#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "control/ControlScreen.h"
#include "kit/CommandGate.h"
#include "win32/Help.h"
#include "win32/Module.h"
#include "win32/PanelWindow.h"
#include "win32/Win32Button.h"
#include "win32/Win32ComboBox.h"
#include "win32/Win32Frame.h"
#include "win32/Win32ListBox.h"
#include "win32/Win32PopupMenu.h"
#include "win32/Win32TextBox.h"
#include "win32/Win32Timer.h"
#include "win32/Win32ValueList.h"
#include "win32/Win32VariableDialog.h"

namespace mavCycEd::win32 {

/// The child controls of the editor's screen, in the order of the Tab key as far as they take the focus: choose an
/// atom, fill in its values, put it into the sequence. Frames stand before what stands in them.
struct EditorControls {
  EditorControls(HWND panel, const kit::CommandGate& gate, std::shared_ptr<platform::Timer> gridTimer,
                 std::shared_ptr<platform::Timer> typingTimer);

  Win32Frame fraSelectedMacro;
  Win32Frame fraCyclePart;
  Win32Frame fraDescription;
  Win32Frame fraAtom;
  Win32Frame fraVariables;
  Win32ComboBox cboAtom;
  Win32ValueList GrdAtom;
  Win32Button cmdInset;
  Win32Button cmdReplace;
  Win32LineListBox lstAtomSequence;
  Win32Button cmdDelete;
  Win32Button cmdDefault;
  Win32TextBox txtCycleDescription;
  Win32ItemListBox lstVariables;
  Win32Button cmdIns;
  Win32Button cmdDel;
  Win32PopupMenu mnuSubParam;
  std::shared_ptr<platform::Timer> tmrUpdateGrid;
  std::shared_ptr<platform::Timer> tmrTypingPause;
};

/// The screen of the editor: a window with the child controls, to be a child of the host's.
///
/// The window may go before the screen does, as windows go with their parents; the controls then keep what they hold
/// and show nothing any more.
class EditorScreen {
 public:
  /// `parent`: the window that the editor stands in; nullptr: none yet (see setParent). Without a grid timer the screen
  /// has its own, which gives way to an operator who works in the grid already.
  explicit EditorScreen(HWND parent, std::shared_ptr<platform::Timer> gridTimer = nullptr,
                        std::shared_ptr<platform::Timer> typingTimer = nullptr);
  ~EditorScreen();
  EditorScreen(const EditorScreen&) = delete;
  EditorScreen& operator=(const EditorScreen&) = delete;

  /// The editor's own window; nullptr when it is gone.
  HWND window() const { return panel_.handle(); }
  /// Moves the window into another one; nullptr: it stands nowhere and is not seen.
  void setParent(HWND parent);
  void setPlace(const RECT& place) { panel_.place(place); }

  /// Closes the window and everything in it; the controls keep what they hold.
  void destroyWindow();

  /// The host's font instead of the system's, and the host's colours.
  void setFont(const platform::Font& font);
  void setColors(COLORREF background, COLORREF text) { panel_.setColors(background, text); }

  /// Gives a key of the host's message loop to the editor's window: the Tab key, arrows, access keys. True when the
  /// editor took it.
  bool translate(MSG& message) const;
  /// Gives the first control, or the last one, the focus.
  void focusFirst();
  void focusLast();

  /// What is called before the variable dialog keeps the host's window waiting (true) and afterwards (false).
  void setModality(std::function<void(bool)> modality) { variableDialogs_.setModality(std::move(modality)); }

  /// What F1 does in the editor and in its variable dialog.
  void setHelp(const std::function<void(HWND over, HelpPage page)>& help);
  /// What the keys for taking steps back do.
  void setHistory(std::function<void(HistoryStep)> history) { panel_.setHistory(std::move(history)); }

  ControlScreen controls();
  EditorControls& windows() { return controls_; }
  const Win32VariableDialogs& variableDialogs() const { return variableDialogs_; }

  /// What commands pass before they run.
  const kit::CommandGate& gate() const { return gate_; }

 private:
  void fit();
  void layOut();
  void layOutSelectedMacro(const RECT& place);
  void layOutCycle(const RECT& place);
  void connectKeys();
  HelpPage helpPage();
  void nameForPeople();

  std::optional<ThemedScope> themed_{std::in_place};  // while the windows are made
  kit::CommandGate gate_;
  PanelWindow parking_;  // where the window is that stands nowhere: not seen
  PanelWindow panel_;
  EditorControls controls_;
  Win32VariableDialogs variableDialogs_;
  std::optional<platform::Font> hostFont_;
  FontHandle font_;
};

}  // namespace mavCycEd::win32
