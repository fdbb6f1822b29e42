#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "panels/CycleState.h"
#include "panels/CycleView.h"
#include "platform/ComboBox.h"
#include "platform/ErrorSink.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

struct MacroLine;

/// Loads a macro text into the editor, and writes the editor's cycle as one; see cycle/MacroLines.h for the format.
class MacroText {
 public:
  /// `insertAtomLine` inserts the picker's atom with the grid's values, as the operator's command does.
  MacroText(CycleState& cycle, CycleView& view, platform::ComboBox& cboAtom, platform::ValueListActiveX& GrdAtom,
            std::function<void()> insertAtomLine, ErrorSink& errors)
      : cycle_(cycle),
        view_(view),
        cboAtom_(cboAtom),
        grdAtom_(GrdAtom),
        insertAtomLine_(std::move(insertAtomLine)),
        errors_(errors) {}

  /// Whether a text is a macro text: at least one line break, and the first line exactly "[PMA]".
  bool IsAnMacro(std::string_view text);
  /// Fills the editor from a macro text by working its controls as an operator would.
  void FillMacro(std::string_view text);
  /// The editor's state as a macro text, without the header; empty when it cannot be written.
  std::string MacroString();

 private:
  void fillLines(std::string_view text, std::string& description);
  void fillAtomLine(const MacroLine& line);
  void RetrieveMacroString();

  CycleState& cycle_;
  CycleView& view_;
  platform::ComboBox& cboAtom_;
  platform::ValueListActiveX& grdAtom_;
  std::function<void()> insertAtomLine_;
  ErrorSink& errors_;
  std::string macroText_;
};

}  // namespace mavCycEd
