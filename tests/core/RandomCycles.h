#pragma once

#include <rapidcheck.h>

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "TestDocuments.h"
#include "TestEditor.h"

/// Random cycles and random operators for the properties of the editor.
namespace mavCycEd::test {

/// What an operator does, or a host asks.
struct Step {
  enum class Kind {
    Choose,
    Type,
    Pick,
    Default,
    Insert,
    Replace,
    Delete,
    Select,
    DoubleClick,
    Describe,
    Tick,
    AskChanged,
    Retrieve,
    SelectVariable,
    NewVariable,
    EditVariable,
    DropVariable,
    Undo,
    Redo
  };
  Kind kind = Kind::Insert;
  int number = 0;    ///< the item, row or line, counted round
  std::string text;  ///< what is typed
};

void showValue(const Step& step, std::ostream& output);
void showValue(const CycleOf& cycle, std::ostream& output);

/// A catalogue with blocks, and with parameters of every kind whose values are not checked against a range.
std::string roomyCatalogue();

/// A text that a cycle document carries as a name or a value: no "&", "<", ";" or line end.
rc::Gen<std::string> carriedText();
/// A description that comes back as it was typed: it holds neither the marker nor anything that looks like an entity.
rc::Gen<std::string> carriedDescription();
/// A cycle of up to 30 lines, of any version, with names of the catalogue and others.
rc::Gen<CycleOf> cycles();
/// Up to 40 steps on the sequence and the description.
rc::Gen<std::vector<Step>> steps();
/// Up to 40 steps on all of a cycle, without handing it back.
rc::Gen<std::vector<Step>> stepsOnAll();

/// Gives every position of the loaded cycle something that stays there: a duration and a group index. It is a step of
/// this name, which the random steps leave alone.
void markPositions(TestEditor& editor);
inline constexpr std::string_view markStep = "Mark";
/// Takes the last step back, unless it is that one. Whether there was such a step.
bool undoUnlessMark(TestEditor& editor);
/// Does what a step says, where there is something to do it with.
void perform(const Step& step, TestEditor& editor);

}  // namespace mavCycEd::test
