#include "TestEditor.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace mavCycEd::test {

TestEditor::TestEditor(std::shared_ptr<AtomListProvider> provider)
    : headless_(
          platform.services(), [this](const CycleEditorErrorEvent& event) { errors.push_back(event); },
          std::move(provider)) {}

void TestEditor::load(std::string_view catalogue, std::string_view cycle) { control().SetXMLStrings(catalogue, cycle); }

void TestEditor::choose(std::string_view atom) {
  const std::vector<std::string>& items = screen().cboAtom.items();
  const auto item = std::find(items.begin(), items.end(), atom);
  ASSERT_NE(item, items.end()) << atom;
  screen().cboAtom.setIndex(static_cast<int>(item - items.begin()));
}

std::vector<std::string> TestEditor::atomNames() {
  std::vector<std::string> names;
  for (const cAtom& atom : control().atoms()) names.push_back(atom.AtomName());
  return names;
}

std::vector<std::string> TestEditor::atomParameters() {
  std::vector<std::string> parameters;
  for (const cAtom& atom : control().atoms()) parameters.push_back(textOf(atom.AtomParameters()));
  return parameters;
}

std::vector<std::string> TestEditor::gridKeys() {
  std::vector<std::string> keys;
  for (int row = 1; row < screen().GrdAtom.RowCount(); ++row) keys.push_back(screen().GrdAtom.cellText(0, row));
  return keys;
}

std::vector<std::string> TestEditor::gridValues() {
  std::vector<std::string> values;
  for (int row = 1; row < screen().GrdAtom.RowCount(); ++row) values.push_back(screen().GrdAtom.cellText(1, row));
  return values;
}

std::vector<std::string> TestEditor::pickList(int row) {
  const kit::ValueListRows::Entry* entry = screen().GrdAtom.rows().entry(row);
  return entry != nullptr ? entry->pickList : std::vector<std::string>();
}

std::vector<std::string> TestEditor::failedProcedures() const {
  std::vector<std::string> names;
  for (const CycleEditorErrorEvent& event : errors) names.push_back(event.strProcedure);
  return names;
}

}  // namespace mavCycEd::test
