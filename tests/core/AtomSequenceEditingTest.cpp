#include "panels/AtomSequenceEditing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestDocuments.h"
#include "TestEditor.h"

namespace mavCycEd {
namespace {

using test::cycleOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AtomSequenceEditingTest : public ::testing::Test {
 protected:
  AtomSequenceEditingTest() {
    test::Catalogue catalogue;
    catalogue.atoms = {{"A", {}},
                       {"B", {}},
                       {"MIX", {"Volume;1;9;9;1;None", "#Mode;0;0;1;7", "Note;0;9;0;1;None"}},
                       {"ODD", {"#;0;0;1;7", "Volume;1;9;9;1;None", "?;0;9;0;1;None"}},
                       {"REPEAT", {}},
                       {"END", {}}};
    catalogue.lists = {{"7", "slow;fast"}};
    catalogue_ = xmlOf(catalogue);
  }
  void load(const std::vector<std::string>& names) { editor_.load(catalogue_, cycleOf(names)); }
  /// Loads the lines without selecting any.
  void loadUnselected(const std::vector<std::string>& names) {
    load(names);
    editor_.select(-1);
  }
  void insert(const std::string& atom) {
    editor_.choose(atom);
    editor_.insert();
  }
  void replace(const std::string& atom) {
    editor_.choose(atom);
    editor_.replace();
  }
  void numberPositions() {
    for (std::size_t i = 0; i < editor_.control().cycle().lines.size(); ++i) {
      const std::string number = std::to_string(i + 1);
      editor_.control().Perform(edits::setPlace(i, {"d" + number, "g" + number}), "Mark");
    }
  }
  void setParameters(std::size_t index, const char* parameters) {
    AtomLine line = editor_.control().cycle().lines[index];
    line.parameters = ParameterText(parameters);
    editor_.control().Perform(edits::replaceLine(index, line), "Change");
  }
  std::vector<std::string> durations() {
    std::vector<std::string> result;
    for (const cAtom& line : editor_.control().atoms()) result.push_back(line.Duration() + line.GroupIndex());
    return result;
  }

  std::string catalogue_;
  test::TestEditor editor_;
};

TEST_F(AtomSequenceEditingTest, InsertIntoAnEmptySequenceAddsAndSelectsTheLine) {
  load({});
  insert("A");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A"));
  EXPECT_EQ(editor_.selected(), 0);
  EXPECT_THAT(editor_.atomNames(), ElementsAre("A"));
  EXPECT_TRUE(editor_.control().changedFlag());
}

TEST_F(AtomSequenceEditingTest, InsertWithoutSelectionAppendsAndSelectsTheFirstLine) {
  loadUnselected({"A", "A", "A"});
  insert("B");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A", "02 A", "03 A", "04 B"));
  EXPECT_EQ(editor_.selected(), 0);
  EXPECT_THAT(editor_.atomNames(), ElementsAre("A", "A", "A", "B"));
}

TEST_F(AtomSequenceEditingTest, AppendTakesUpTheIndentWhereTheListEnds) {
  loadUnselected({"REPEAT", "A"});
  insert("B");
  EXPECT_EQ(editor_.lines().back(), "03    B");
  editor_.select(-1);
  insert("END");
  EXPECT_EQ(editor_.lines().back(), "04 END");
  editor_.select(-1);
  insert("REPEAT");
  EXPECT_EQ(editor_.lines().back(), "05 REPEAT");
  editor_.select(-1);
  insert("A");
  EXPECT_EQ(editor_.lines().back(), "06    A");
}

TEST_F(AtomSequenceEditingTest, AppendDoesNotRebuildTheList) {
  load({"REPEAT", "A", "END"});
  editor_.select(1);
  replace("B");
  editor_.select(-1);
  insert("A");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 REPEAT", "02 B", "03 END", "04 A"));
}

TEST_F(AtomSequenceEditingTest, InsertBehindTheSelectionSelectsTheNewLine) {
  load({"REPEAT", "A", "END"});
  editor_.select(1);
  insert("B");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 REPEAT", "02    A", "03    B", "04 END"));
  EXPECT_EQ(editor_.selected(), 2);
}

TEST_F(AtomSequenceEditingTest, InsertBehindTheLastLineExtendsTheSequence) {
  load({"A", "A"});
  editor_.select(1);
  insert("B");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A", "02 A", "03 B"));
  EXPECT_EQ(editor_.selected(), 2);
}

TEST_F(AtomSequenceEditingTest, InsertRebuildsTheWholeList) {
  load({"REPEAT", "A", "END", "A"});
  editor_.select(2);
  replace("B");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 REPEAT", "02    A", "03 B", "04 A"));
  insert("A");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 REPEAT", "02    A", "03    B", "04    A", "05    A"));
}

TEST_F(AtomSequenceEditingTest, InsertLeavesDurationAndGroupIndexAtTheirPositions) {
  load({"REPEAT", "A", "END"});
  numberPositions();
  editor_.select(1);
  insert("B");
  EXPECT_THAT(editor_.atomNames(), ElementsAre("REPEAT", "A", "B", "END"));
  EXPECT_THAT(durations(), ElementsAre("d1g1", "d2g2", "d3g3", ""));
}

TEST_F(AtomSequenceEditingTest, InsertMovesNamesWithTheirParameters) {
  load({"A", "B"});
  setParameters(0, "first;1");
  setParameters(1, "second;2");
  editor_.select(0);
  insert("MIX");
  EXPECT_THAT(editor_.atomNames(), ElementsAre("A", "MIX", "B"));
  EXPECT_THAT(editor_.atomParameters(), ElementsAre("first;1", "Volume;9\rMode;fast\rNote;", "second;2"));
}

TEST_F(AtomSequenceEditingTest, InsertWithoutAnAtomDoesNothing) {
  load({});
  EXPECT_EQ(editor_.screen().cboAtom.text(), "");
  editor_.insert();
  EXPECT_THAT(editor_.lines(), IsEmpty());
  EXPECT_FALSE(editor_.control().changedFlag());
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(AtomSequenceEditingTest, ParametersHaveOneLinePerGridRow) {
  load({});
  editor_.choose("MIX");
  editor_.screen().GrdAtom.type(3, "Größe µ");
  editor_.insert();
  EXPECT_THAT(editor_.atomParameters(), ElementsAre("Volume;9\rMode;fast\rNote;Größe µ"));
}

TEST_F(AtomSequenceEditingTest, ARowWithoutValueEndsWithOneSemicolon) {
  load({});
  editor_.choose("MIX");
  editor_.screen().GrdAtom.type(1, "");
  editor_.insert();
  EXPECT_THAT(editor_.atomParameters(), ElementsAre("Volume;\rMode;fast\rNote;"));
}

TEST_F(AtomSequenceEditingTest, ARowWithoutNameIsItsValue) {
  load({});
  editor_.choose("ODD");
  editor_.insert();
  EXPECT_THAT(editor_.atomParameters(), ElementsAre("fast\rVolume;9\r")) << "nameless and empty: nothing between";
}

TEST_F(AtomSequenceEditingTest, AnAtomWithoutParametersHasAnEmptyText) {
  load({});
  insert("A");
  EXPECT_THAT(editor_.atomParameters(), ElementsAre(""));
}

TEST_F(AtomSequenceEditingTest, ReplaceShowsTheLineAtTheMargin) {
  load({"REPEAT", "A", "END"});
  editor_.select(1);
  replace("B");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 REPEAT", "02 B", "03 END"));
  EXPECT_THAT(editor_.atomNames(), ElementsAre("REPEAT", "B", "END"));
  EXPECT_EQ(editor_.selected(), 1);
  EXPECT_TRUE(editor_.control().changedFlag());
}

TEST_F(AtomSequenceEditingTest, ReplaceWritesNewParametersAndKeepsDurationAndGroupIndex) {
  load({"A"});
  numberPositions();
  editor_.select(0);
  replace("MIX");
  EXPECT_THAT(editor_.atomParameters(), ElementsAre("Volume;9\rMode;fast\rNote;"));
  EXPECT_THAT(durations(), ElementsAre("d1g1"));
}

TEST_F(AtomSequenceEditingTest, ReplacingAnEndLeavesTheLinesBehindUntilTheNextRebuild) {
  load({"REPEAT", "A", "END", "A"});
  editor_.select(2);
  replace("B");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 REPEAT", "02    A", "03 B", "04 A"));
  editor_.select(3);
  editor_.remove();
  EXPECT_THAT(editor_.lines(), ElementsAre("01 REPEAT", "02    A", "03    B"));
}

TEST_F(AtomSequenceEditingTest, ReplaceWithoutSelectionDoesNothing) {
  loadUnselected({"A"});
  replace("B");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A"));
  EXPECT_THAT(editor_.atomNames(), ElementsAre("A"));
  EXPECT_FALSE(editor_.control().changedFlag());
}

TEST_F(AtomSequenceEditingTest, ReplaceByAnEmptyNameIsNotRefused) {
  load({"A", "B"});
  editor_.screen().cboAtom.setText("");
  editor_.select(-1);
  editor_.screen().lstAtomSequence.setEvents({});
  editor_.select(1);
  editor_.replace();
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A", "02 "));
  EXPECT_THAT(editor_.atomNames(), ElementsAre("A", ""));
}

TEST_F(AtomSequenceEditingTest, TheHundredthLineIsReplacedUnderItsFullNumber) {
  load(std::vector<std::string>(101, "A"));
  editor_.select(99);
  replace("B");
  EXPECT_EQ(editor_.lines()[99], "100 B");
  editor_.select(8);
  replace("B");
  EXPECT_EQ(editor_.lines()[8], "09 B");
}

TEST_F(AtomSequenceEditingTest, DeleteSelectsTheLineThatMovedUp) {
  load({"A", "B", "MIX"});
  editor_.select(1);
  editor_.remove();
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A", "02 MIX"));
  EXPECT_THAT(editor_.atomNames(), ElementsAre("A", "MIX"));
  EXPECT_EQ(editor_.selected(), 1);
  EXPECT_EQ(editor_.screen().cboAtom.text(), "MIX");
  EXPECT_TRUE(editor_.control().changedFlag());
}

TEST_F(AtomSequenceEditingTest, DeleteOfTheLastLineSelectsTheNewLastLine) {
  load({"A", "B"});
  editor_.select(1);
  editor_.remove();
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A"));
  EXPECT_EQ(editor_.selected(), 0);
}

TEST_F(AtomSequenceEditingTest, DeleteOfTheOnlyLineLeavesNoSelection) {
  load({"A"});
  editor_.remove();
  EXPECT_THAT(editor_.lines(), IsEmpty());
  EXPECT_THAT(editor_.atomNames(), IsEmpty());
  EXPECT_EQ(editor_.selected(), -1);
  EXPECT_TRUE(editor_.control().changedFlag());
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(AtomSequenceEditingTest, DeleteWithoutSelectionDoesNothing) {
  loadUnselected({"A"});
  editor_.remove();
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A"));
  EXPECT_FALSE(editor_.control().changedFlag());
}

TEST_F(AtomSequenceEditingTest, DeleteOfARepeatLeavesItsEndAtTheMargin) {
  load({"REPEAT", "A", "END", "B"});
  editor_.select(0);
  editor_.remove();
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A", "02 END", "03 B"));
}

TEST_F(AtomSequenceEditingTest, DeleteTakesDurationAndGroupIndexWithTheLine) {
  load({"A", "B", "A"});
  numberPositions();
  editor_.select(1);
  editor_.remove();
  EXPECT_THAT(durations(), ElementsAre("d1g1", "d3g3"));
}

TEST_F(AtomSequenceEditingTest, ChoosingAnAtomChangesNothingInTheSequence) {
  load({"A"});
  editor_.choose("MIX");
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A"));
  EXPECT_FALSE(editor_.control().changedFlag());
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Volume", "Mode", "Note"));
}

TEST_F(AtomSequenceEditingTest, ChoosingAnAtomStartsTheGridTimer) {
  load({});
  EXPECT_FALSE(editor_.screen().tmrUpdateGrid.isEnabled());
  editor_.choose("MIX");
  EXPECT_TRUE(editor_.screen().tmrUpdateGrid.isEnabled());
  EXPECT_EQ(editor_.screen().tmrUpdateGrid.interval(), 500);
  EXPECT_TRUE(editor_.control().gridReady());
}

TEST_F(AtomSequenceEditingTest, TheDefaultButtonGivesTheDefaultsAgain) {
  load({"MIX"});
  editor_.choose("MIX");
  editor_.screen().GrdAtom.type(1, "5");
  editor_.screen().tmrUpdateGrid.fire();
  editor_.screen().cmdDefault.press();
  EXPECT_THAT(editor_.gridValues(), ElementsAre("9", "fast", ""));
  EXPECT_TRUE(editor_.screen().tmrUpdateGrid.isEnabled());
  EXPECT_FALSE(editor_.control().changedFlag());
}

TEST_F(AtomSequenceEditingTest, InsertedValuesAreShownWhenTheLineIsSelected) {
  load({});
  editor_.choose("MIX");
  editor_.screen().GrdAtom.type(1, "5");
  editor_.screen().GrdAtom.pick(2, "slow");
  editor_.insert();
  insert("A");
  EXPECT_THAT(editor_.gridValues(), IsEmpty());
  editor_.select(0);
  EXPECT_THAT(editor_.gridValues(), ElementsAre("5", "slow", ""));
}

/// A list that fails when it is asked to change a line.
TEST(AtomSequenceEditingBehindAFailure, AnInsertShowsWhatWasReadBeforeIt) {
  test::TestEditor editor;
  editor.load(test::catalogueOf({"A", "B"}),
              "<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>A</ATOMNAME><PARAMETERS/></ATOM><ATOM/></ATOMS>"
              "</ATOMSEQUENCE></CYCLE>");
  EXPECT_THAT(editor.lines(), ::testing::IsEmpty());
  editor.screen().cboAtom.setText("B");
  editor.screen().cmdInset.press();
  EXPECT_THAT(editor.lines(), ElementsAre("01 A", "02 B"));
  EXPECT_THAT(editor.atomNames(), ElementsAre("A", "B"));
}

class BrokenList : public memory::MemoryLineListBox {
 public:
  BrokenList() : MemoryLineListBox(nullptr) {}
  void spliced(int at, int removed, int added) override {
    if (isBroken) throw RunTimeError(1, "no line");
    MemoryLineListBox::spliced(at, removed, added);
  }
  void showLines(const platform::ListLines& lines) override {
    if (isBroken) throw RunTimeError(2, "no list");
    MemoryLineListBox::showLines(lines);
  }
  bool isBroken = false;
};

TEST(AtomSequenceEditingFailures, AreReportedUnderTheProceduresName) {
  test::TestPlatform platform;
  test::RecordingSink sink;
  CycleState cycle;
  GridState grid;
  BrokenList lstAtomSequence;
  memory::MemoryComboBox cboAtom(nullptr);
  memory::MemoryValueList GrdAtom(nullptr);
  memory::MemoryTimer tmrUpdateGrid;
  modCycleHelper helper(platform.xml);
  class NoProvider : public AtomListProvider {
   public:
    void setIgnoreHidden(bool) override {}
    std::vector<std::string> furtherAtomNames() override { return {}; }
    UnitOfMeasure lookUpUnit(std::string_view name) override { return {std::string(name), 1}; }
    bool isObjectHidden(const platform::XmlNode&) override { return false; }
    std::string furtherParameters(std::string_view) override { return {}; }
  } provider;
  ParamGrid paramGrid(GrdAtom, grid, helper, provider, sink);
  memory::MemoryItemListBox lstVariables(nullptr);
  memory::MemoryTextBox txtCycleDescription(nullptr);
  const CycleScreen screen{txtCycleDescription, lstVariables, lstAtomSequence};
  ExtraValues extraValues(GrdAtom, grid, cycle.cycle(), sink);
  CycleView view(cycle, screen, extraValues, sink);
  ValueValidation validation(GrdAtom, grid, helper, platform.messageBox, sink);
  AtomSequenceEditing editing(cycle, {screen, cboAtom, GrdAtom, tmrUpdateGrid}, view,
                              {grid, paramGrid, extraValues, validation}, sink);
  cboAtom.addItem("B");
  cboAtom.setIndex(0);
  cycle.document.load({"", {}, {{"A", {}}, {"A", {}}}, {}});
  cycle.display.rebuild();
  lstAtomSequence.showLines(cycle.display);
  lstAtomSequence.setIndex(0);
  lstAtomSequence.isBroken = true;
  editing.cmdReplace_Click();
  EXPECT_THAT(sink.procedures(), ElementsAre("cmdReplace_Click"));
  sink.reports.clear();
  editing.cmdInset_Click();
  EXPECT_THAT(sink.procedures(), ::testing::Contains("lstRefresh"));
  sink.reports.clear();
  editing.cmdDelete_Click();
  EXPECT_THAT(sink.procedures(), ElementsAre("cmdDelete_Click"));
}

}  // namespace
}  // namespace mavCycEd
