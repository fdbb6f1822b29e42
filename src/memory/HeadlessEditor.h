#pragma once

#include <memory>

#include "control/EditorControl.h"
#include "memory/MemoryButton.h"
#include "memory/MemoryComboBox.h"
#include "memory/MemoryFrame.h"
#include "memory/MemoryListBox.h"
#include "memory/MemoryPopupMenu.h"
#include "memory/MemoryTextBox.h"
#include "memory/MemoryTimer.h"
#include "memory/MemoryValueList.h"
#include "memory/MemoryVariableDialog.h"

namespace mavCycEd::memory {

/// The editor's screen in memory; the frames contain what they contain on every screen.
struct MemoryScreen {
  MemoryFrame fraCyclePart{nullptr};
  MemoryFrame fraDescription{&fraCyclePart};
  MemoryTextBox txtCycleDescription{&fraDescription};
  MemoryFrame fraAtom{&fraCyclePart};
  MemoryLineListBox lstAtomSequence{&fraAtom};
  MemoryButton cmdInset{&fraAtom};
  MemoryButton cmdReplace{&fraAtom};
  MemoryButton cmdDelete{&fraAtom};
  MemoryFrame fraVariables{&fraCyclePart};
  MemoryItemListBox lstVariables{&fraVariables};
  MemoryButton cmdIns{&fraVariables};
  MemoryButton cmdDel{&fraVariables};
  MemoryFrame fraSelectedMacro{nullptr};
  MemoryComboBox cboAtom{&fraSelectedMacro};
  MemoryValueList GrdAtom{&fraSelectedMacro};
  MemoryButton cmdDefault{&fraSelectedMacro};
  MemoryPopupMenu mnuSubParam;
  MemoryTimer tmrUpdateGrid;
  MemoryTimer tmrTypingPause;
  MemoryVariableDialogs variableDialogs;

  ControlScreen controls();
};

/// The whole editor without a window: a screen in memory and the control on it.
class HeadlessEditor {
 public:
  explicit HeadlessEditor(const PlatformServices& services, CycleEditorErrorHandler onError = {},
                          std::shared_ptr<AtomListProvider> provider = nullptr)
      : control_(screen_->controls(), services, std::move(onError), std::move(provider), screen_) {}

  MemoryScreen& screen() { return *screen_; }
  const MemoryScreen& screen() const { return *screen_; }
  EditorControl& control() { return control_; }
  const EditorControl& control() const { return control_; }

 private:
  std::shared_ptr<MemoryScreen> screen_ = std::make_shared<MemoryScreen>();
  EditorControl control_;
};

}  // namespace mavCycEd::memory
