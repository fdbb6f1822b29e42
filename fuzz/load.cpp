// Any catalogue, configuration and cycle. The input is the three texts with lines "%%%%" between them.
#include <string>
#include <vector>

#include "CycleRules.h"
#include "FuzzEditor.h"
#include "Require.h"
#include "text/Strings.h"

namespace mavCycEd::fuzz {
namespace {

constexpr std::string_view separator = "\n%%%%\n";

std::string_view takePart(std::string_view& rest) {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + separator.size());
  return part;
}

// What was filled before an element was missing stays, and the list is not built.
void requireScreenShowsCycle(FuzzEditor& editor) {
  if (editor.hasFailed("FillCycle")) {
    require(editor.screen().lstAtomSequence.itemCount() == 0, "a cycle that lacks an element shows no lines");
  } else {
    requireListShowsAtoms(editor.screen().lstAtomSequence.items(), editor.control().atoms());
  }
  require(editor.control().gridReady(), "the grid is ready");
}

std::vector<std::string> writtenVariables(FuzzEditor& editor) {
  std::vector<std::string> variables = editor.screen().lstVariables.items();
  std::erase_if(variables, [](const std::string& variable) { return text::trimSpaces(variable).empty(); });
  return variables;
}

// A cycle that lasts is the same behind loading it again.
void requireSameCycle(FuzzEditor& editor, FuzzEditor& fresh, const std::string& cycle) {
  require(!fresh.hasFailed("FillCycle"), "a cycle that was handed back lacks nothing");
  require(!fresh.control().CycleChanged(), "a cycle that was handed back loads unchanged");
  const auto& before = editor.control().cycle().lines;
  const auto& after = fresh.control().cycle().lines;
  require(before.size() == after.size(), "no atom line is lost or added");
  for (std::size_t i = 0; i < before.size(); ++i) {
    requireSame(after[i].name, before[i].name, "the atom lines keep their names");
    requireSame(after[i].parameters.text(), reloadedParameters(before[i].parameters), "and their values");
  }
  require(fresh.screen().lstVariables.items() == writtenVariables(editor), "the variables are the same");
  requireSame(fresh.screen().txtCycleDescription.text(), editor.screen().txtCycleDescription.text(),
              "the description is the same");
  requireSame(fresh.control().RetrieveCycle(), cycle, "the cycle is handed back as it was");
}

void requireHandsBack(FuzzEditor& editor, std::string_view catalogue, std::string_view configuration) {
  const bool plain = requirePlainAsFromADocument(editor.control().cycle(), editor.platform.xml);
  const bool lasting = plain && isLastingCycle(editor.control().cycle());
  const std::string cycle = editor.control().RetrieveCycle();
  if (cycle.empty()) return;
  const auto document = editor.platform.xml.createDocument();
  require(document->loadXML(cycle), "a cycle that is handed back is a document");
  requireSame(document->xml(), cycle, "a cycle that is handed back reads as its document is written");
  requireReadsAsADocument(cycle, editor.platform.xml);
  // Markup in a value may bring another version in front of the one that is written.
  if (factsOf(*document).version != "03") {
    require(!plain, "a plain cycle has the version 03");
    return;
  }
  require(!editor.control().CycleChanged(), "a cycle is unchanged right behind handing it back");
  FuzzEditor fresh(catalogue, configuration, cycle);
  requireScreenShowsCycle(fresh);
  if (lasting && !fresh.hasFailed("SetXMLStrings")) requireSameCycle(editor, fresh, cycle);
}

// The operator goes on with whatever was loaded: inserts, replaces and deletes lines of each of the first few atoms.
void work(FuzzEditor& editor) {
  constexpr int tried = 4;
  const bool incomplete = editor.hasFailed("FillCycle");
  memory::MemoryScreen& screen = editor.screen();
  for (int i = 0; i < screen.cboAtom.itemCount() && i < tried; ++i) {
    screen.cboAtom.setIndex(i);
    screen.cmdInset.press();
    screen.cmdReplace.press();
    screen.cmdDefault.press();
    if (i % 2 == 1) screen.cmdDelete.press();
    if (!incomplete) requireListShowsAtoms(screen.lstAtomSequence.items(), editor.control().atoms());
  }
}

void run(std::string_view rest) {
  const std::string_view catalogue = takePart(rest);
  const std::string_view configuration = takePart(rest);
  FuzzEditor editor(catalogue, configuration, rest);
  requireScreenShowsCycle(editor);
  requireReadsAsADocument(rest, editor.platform.xml);
  const Cycle loaded = editor.control().cycle();
  editor.control().CycleChanged();
  editor.control().MacroString();
  requireHandsBack(editor, catalogue, configuration);
  work(editor);
  requireHandsBack(editor, catalogue, configuration);

  while (editor.control().Undo()) {
  }
  require(editor.control().cycle() == loaded, "undoing everything leads back to what was loaded");

  editor.control().Ignore_Hidden(true);
  editor.control().SetXMLStrings(catalogue, {});
  requireListShowsAtoms(editor.screen().lstAtomSequence.items(), editor.control().atoms());
  require(editor.control().atoms().Count() == 0 && editor.screen().lstVariables.itemCount() == 0,
          "nothing of the cycle before stays");
  require(!editor.control().changedFlag(), "a new cycle is unchanged");
}

}  // namespace
}  // namespace mavCycEd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mavCycEd::fuzz::run(mavCycEd::fuzz::asText(data, size));
  return 0;
}
