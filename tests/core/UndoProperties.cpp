#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "RandomCycles.h"

namespace mavCycEd::test {
namespace {

/// What undo brings back, and what is handed back of it.
struct Contents {
  std::vector<std::string> names;
  std::vector<std::string> parameters;
  std::vector<std::string> places;  ///< duration and group index
  std::vector<std::string> variables;
  std::string description;

  bool operator==(const Contents&) const = default;
};

Contents contentsOf(TestEditor& editor) {
  Contents contents{editor.atomNames(),
                    editor.atomParameters(),
                    {},
                    editor.screen().lstVariables.items(),
                    editor.screen().txtCycleDescription.text()};
  for (const auto& place : editor.control().cycle().places) {
    contents.places.push_back(place.duration + place.groupIndex);
  }
  return contents;
}

/// Which line and which variable are selected.
struct Selection {
  int line = -1;
  int variable = -1;

  bool operator==(const Selection&) const = default;
};

Selection selectionOf(TestEditor& editor) { return {editor.selected(), editor.screen().lstVariables.index()}; }

/// The lines as a list that is written anew shows them.
std::vector<std::string> writtenAnew(const std::vector<std::string>& names) {
  std::vector<std::string> lines;
  std::size_t indent = 1;
  for (const std::string& name : names) {
    if (name == "END") indent = indent > 3 ? indent - 3 : 1;
    const std::string number = std::to_string(lines.size() + 1);
    lines.push_back((number.size() < 2 ? "0" : "") + number + std::string(indent, ' ') + name);
    if (name == "REPEAT") indent += 3;
  }
  return lines;
}

void undoAll(TestEditor& editor) {
  while (undoUnlessMark(editor)) continue;
}

void redoAll(TestEditor& editor) {
  while (editor.control().Redo()) continue;
}

RC_GTEST_PROP(Undo, OfAllStepsGivesWhatWasLoadedAndRedoTheLast, ()) {
  TestEditor editor;
  editor.load(roomyCatalogue(), xmlOf(*cycles().as("cycle")));
  // A cycle that was handed back reads unchanged behind the load; many of another origin do not.
  if (*rc::gen::arbitrary<bool>().as("handed back")) editor.load(roomyCatalogue(), editor.control().RetrieveCycle());
  markPositions(editor);
  const Contents loaded = contentsOf(editor);
  const bool changed = editor.control().CycleChanged();
  for (const Step& step : *stepsOnAll().as("steps")) perform(step, editor);
  redoAll(editor);
  const Contents last = contentsOf(editor);
  const bool lastChanged = editor.control().CycleChanged();
  const std::size_t messages = editor.platform.messages.size();
  undoAll(editor);
  RC_ASSERT(contentsOf(editor) == loaded);
  RC_ASSERT(editor.lines() == writtenAnew(editor.atomNames()) || !editor.control().redoText());
  RC_ASSERT(editor.control().CycleChanged() == changed);
  redoAll(editor);
  RC_ASSERT(contentsOf(editor) == last);
  RC_ASSERT(editor.control().CycleChanged() == lastChanged);
  RC_ASSERT(editor.platform.messages.size() == messages);
  RC_ASSERT(editor.errors.empty());
}

RC_GTEST_PROP(Undo, OfAStepGivesWhatWasBeforeIt, ()) {
  TestEditor editor;
  editor.load(roomyCatalogue(), xmlOf(*cycles().as("cycle")));
  markPositions(editor);
  for (const Step& step : *stepsOnAll().as("steps")) {
    if (step.kind == Step::Kind::Undo || step.kind == Step::Kind::Redo) continue;
    const Contents before = contentsOf(editor);
    Selection selected = selectionOf(editor);
    // A double click selects the variable that it opens.
    const int variables = static_cast<int>(before.variables.size());
    if (step.kind == Step::Kind::EditVariable && variables > 0) selected.variable = step.number % variables;
    perform(step, editor);
    const Contents after = contentsOf(editor);
    if (after == before) continue;
    RC_ASSERT(undoUnlessMark(editor));
    RC_ASSERT(contentsOf(editor) == before);
    RC_ASSERT(selectionOf(editor) == selected);
    RC_ASSERT(editor.lines() == writtenAnew(before.names));
    RC_ASSERT(editor.control().Redo());
    RC_ASSERT(contentsOf(editor) == after);
    RC_ASSERT(editor.lines() == writtenAnew(after.names));
    RC_ASSERT(!editor.control().redoText());
  }
}

RC_GTEST_PROP(Undo, OutlivesHandBacks, ()) {
  TestEditor editor;
  editor.load(roomyCatalogue(), xmlOf(*cycles().as("cycle")));
  const Contents loaded = contentsOf(editor);
  for (const Step& step : *stepsOnAll().as("steps")) {
    perform(step, editor);
    editor.control().RetrieveCycle();
  }
  redoAll(editor);
  const std::string last = editor.control().RetrieveCycle();
  undoAll(editor);
  RC_ASSERT(contentsOf(editor) == loaded);
  redoAll(editor);
  RC_ASSERT(!editor.control().CycleChanged());
  RC_ASSERT(editor.control().RetrieveCycle() == last);
}

}  // namespace
}  // namespace mavCycEd::test
