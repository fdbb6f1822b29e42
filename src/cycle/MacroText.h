#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "cycle/CycleState.h"
#include "platform/ComboBox.h"
#include "platform/ErrorSink.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// The macro text: a cycle as lines that end with carriage return and line feed.
///
/// | line                                  | meaning                                   |
/// |---------------------------------------|-------------------------------------------|
/// | [PMA]                                 | the header; nothing wherever it stands    |
/// | //...                                 | a line of the description                 |
/// | NAME(value,value)                     | an atom line; NAME of "A" to "Z" and "_"  |
/// | anything else, also nothing at all    | a cycle variable                          |
///
/// It carries descriptions of one line only: "//" is written in front of the first line alone.
class MacroText {
 public:
  /// `insertAtomLine` inserts the picker's atom with the grid's values, as the operator's command does.
  MacroText(CycleState& cycle, const CycleScreen& screen, platform::ComboBox& cboAtom,
            platform::ValueListActiveX& GrdAtom, std::function<void()> insertAtomLine, ErrorSink& errors)
      : cycle_(cycle),
        screen_(screen),
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
  void fillAtomLine(std::string_view line);
  void RetrieveMacroString();

  CycleState& cycle_;
  CycleScreen screen_;
  platform::ComboBox& cboAtom_;
  platform::ValueListActiveX& grdAtom_;
  std::function<void()> insertAtomLine_;
  ErrorSink& errors_;
  std::string macroText_;
};

}  // namespace mavCycEd
