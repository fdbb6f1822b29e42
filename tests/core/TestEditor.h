#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "TestPlatform.h"
#include "catalogue/AtomListProvider.h"
#include "memory/HeadlessEditor.h"

namespace mavCycEd::test {

/// An editor without a window, with the hands of a host and of a user. It remembers the error events.
class TestEditor {
 public:
  explicit TestEditor(std::shared_ptr<AtomListProvider> provider = nullptr);

  EditorControl& control() { return headless_.control(); }
  memory::MemoryScreen& screen() { return headless_.screen(); }

  /// Loads a catalogue and a cycle.
  void load(std::string_view catalogue, std::string_view cycle = {});
  /// Picks an atom; a test fails when it is not offered.
  void choose(std::string_view atom);
  void select(int line) { screen().lstAtomSequence.setIndex(line); }
  void insert() { screen().cmdInset.press(); }
  void replace() { screen().cmdReplace.press(); }
  void remove() { screen().cmdDelete.press(); }

  std::vector<std::string> lines() { return screen().lstAtomSequence.items(); }
  int selected() { return screen().lstAtomSequence.index(); }
  /// The names of the atom lines.
  std::vector<std::string> atomNames();
  /// The parameter texts of the atom lines.
  std::vector<std::string> atomParameters();
  /// The keys and the values of the grid's rows.
  std::vector<std::string> gridKeys();
  std::vector<std::string> gridValues();
  /// The pick list of a grid row.
  std::vector<std::string> pickList(int row);
  /// The procedures that reported an error, in order.
  std::vector<std::string> failedProcedures() const;

  TestPlatform platform;
  std::vector<CycleEditorErrorEvent> errors;

 private:
  memory::HeadlessEditor headless_;
};

}  // namespace mavCycEd::test
