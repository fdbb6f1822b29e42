#include "control/EditorControl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "ScreenParts.h"
#include "TestDocuments.h"
#include "TestEditor.h"

namespace mavCycEd {
namespace {

using test::catalogueOf;
using test::cycleOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class EditorControlTest : public ::testing::Test {
 protected:
  memory::MemoryScreen& screen() { return editor_.screen(); }
  EditorControl& control() { return editor_.control(); }
  std::string fullCatalogue() const {
    test::Catalogue catalogue;
    catalogue.atoms = {{"MIX", {"Volume;1;9;9;1;None", "Speed;1;9;1;1;None"}}, {"!WA!IT", {}}};
    return xmlOf(catalogue);
  }
  std::string fullCycle() const {
    test::CycleOf cycle;
    cycle.description = "//text";
    cycle.variables = {"Vol;ml;1;0;9"};
    cycle.lines = {{"MIX", {{"Volume", "5"}, {"Speed", "3"}}}, {"WAIT", {}}};
    return xmlOf(cycle);
  }
  void expectEmptyCycle() {
    EXPECT_EQ(screen().txtCycleDescription.text(), "");
    EXPECT_THAT(screen().lstVariables.items(), IsEmpty());
    EXPECT_THAT(screen().lstAtomSequence.items(), IsEmpty());
    EXPECT_EQ(control().atoms().Count(), 0);
  }

  test::TestEditor editor_;
};

TEST_F(EditorControlTest, StartGivesTheScreenItsCaptions) {
  EXPECT_EQ(screen().fraCyclePart.caption(), "Cycle ");
  EXPECT_EQ(screen().fraDescription.caption(), "Description");
  EXPECT_EQ(screen().fraAtom.caption(), "Atom Sequence");
  EXPECT_EQ(screen().cmdInset.caption(), "In&sert ");
  EXPECT_EQ(screen().cmdReplace.caption(), "&Replace");
  EXPECT_EQ(screen().cmdDelete.caption(), "De&lete");
  EXPECT_EQ(screen().fraVariables.caption(), "Cycle Variables");
  EXPECT_EQ(screen().cmdIns.caption(), "&Insert ");
  EXPECT_EQ(screen().cmdDel.caption(), "D&elete");
  EXPECT_EQ(screen().fraSelectedMacro.caption(), "Selected Atom");
  EXPECT_EQ(screen().GrdAtom.caption(), "Atom Parameters");
  EXPECT_EQ(screen().cmdDefault.caption(), "&Default");
  EXPECT_EQ(screen().mnuSubParam.caption(), "Params");
}

TEST_F(EditorControlTest, StartTitlesTheColumnsAndStopsTheTimer) {
  EXPECT_EQ(screen().GrdAtom.cellText(0, 0), "Parameter");
  EXPECT_EQ(screen().GrdAtom.cellText(1, 0), "Value");
  EXPECT_FALSE(screen().tmrUpdateGrid.isEnabled());
  EXPECT_FALSE(control().changedFlag());
  EXPECT_EQ(control().atoms().Count(), 0);
  EXPECT_THAT(editor_.errors, IsEmpty());
}

/// A grid and a list that tell the font their cells are drawn in from their own.
class FontGrid : public memory::MemoryValueList {
 public:
  FontGrid() : MemoryValueList(nullptr) {}
  platform::Font font() const override { return {.faceName = "Grid", .pointSize = 9, .characterSet = 204}; }
  void setCellFont(const platform::Font& font) override { cells = font; }
  platform::Font cells;
};
class FontList : public memory::MemoryItemListBox {
 public:
  FontList() : MemoryItemListBox(nullptr) {}
  platform::Font font() const override { return {.faceName = "List", .pointSize = 8, .characterSet = 161}; }
  void setItemFont(const platform::Font& font) override { items = font; }
  platform::Font items;
};

TEST(EditorControlStart, CopiesTheFontsOfGridAndVariables) {
  test::TestPlatform platform;
  memory::MemoryScreen screen;
  FontGrid grid;
  FontList variables;
  const ControlScreen made = screen.controls();
  const EditorControl control(test::withParts(made, {variables, grid, made.tmrUpdateGrid}), platform.services(), {});
  EXPECT_EQ(grid.cells, grid.font());
  EXPECT_EQ(variables.items, variables.font());
}

TEST(EditorControlEnd, LeavesAScreenThatNobodyAnswers) {
  test::TestPlatform platform;
  memory::MemoryScreen screen;
  int errors = 0;
  {
    EditorControl control(screen.controls(), platform.services(), [&](const CycleEditorErrorEvent&) { ++errors; });
    control.SetXMLStrings(catalogueOf({"A"}), cycleOf({"A", "A"}));
  }
  for (memory::MemoryButton* button :
       {&screen.cmdInset, &screen.cmdReplace, &screen.cmdDelete, &screen.cmdIns, &screen.cmdDel, &screen.cmdDefault}) {
    button->press();
  }
  screen.cboAtom.setIndex(0);
  screen.lstAtomSequence.setIndex(-1);
  screen.lstVariables.setIndex(-1);
  screen.txtCycleDescription.replace("x");
  screen.GrdAtom.InsertRow("a", "b", true);
  screen.GrdAtom.type(1, "x");
  screen.GrdAtom.moveMouse(200, 20);
  screen.GrdAtom.requestContextMenu(200, 20);
  screen.tmrUpdateGrid.setEnabled(true);
  screen.tmrUpdateGrid.fire();
  EXPECT_TRUE(screen.tmrUpdateGrid.isEnabled());
  EXPECT_THAT(screen.lstAtomSequence.items(), IsEmpty()) << "the lines were the control's";
  EXPECT_EQ(errors, 0);
}

TEST_F(EditorControlTest, LoadingFillsTheScreen) {
  editor_.load(fullCatalogue(), fullCycle());
  EXPECT_EQ(screen().fraCyclePart.caption(), "Cycle");
  EXPECT_TRUE(screen().fraCyclePart.isEnabled());
  EXPECT_TRUE(screen().fraSelectedMacro.isEnabled());
  EXPECT_THAT(screen().cboAtom.items(), ElementsAre("MIX", "WAIT", "REPEAT", "END"));
  EXPECT_EQ(screen().txtCycleDescription.text(), "text");
  EXPECT_THAT(screen().lstVariables.items(), ElementsAre("Vol;ml;1;0;9"));
  EXPECT_THAT(editor_.lines(), ElementsAre("01 MIX", "02 WAIT"));
  EXPECT_THAT(editor_.gridValues(), ElementsAre("5", "3"));
  EXPECT_FALSE(control().changedFlag());
  EXPECT_TRUE(control().gridReady());
  EXPECT_EQ(control().currentGridRow(), 1);
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(EditorControlTest, AnEmptyCatalogueIsReportedAndDisablesTheFrames) {
  for (const char* catalogue : {"", "no XML", "<a>", "<!DOCTYPE LATESTKAM><LATESTKAM/>"}) {
    editor_.errors.clear();
    editor_.load(catalogue, fullCycle());
    ASSERT_THAT(editor_.errors, SizeIs(1)) << catalogue;
    const CycleEditorErrorEvent& event = editor_.errors.front();
    EXPECT_EQ(event.lngError, mavCycEdErrorInvalidXML);
    EXPECT_EQ(event.strError, "The 'latest_kam.xml' is empty or doesn't exist!");
    EXPECT_EQ(event.strApplication, "mavCycEdVersion: 1.3.70");
    EXPECT_EQ(event.strModule, "ctlCycEd");
    EXPECT_EQ(event.strProcedure, "SetXMLStrings ");
    EXPECT_FALSE(screen().fraCyclePart.isEnabled());
    EXPECT_FALSE(screen().fraSelectedMacro.isEnabled());
    EXPECT_THAT(screen().cboAtom.items(), IsEmpty());
    expectEmptyCycle();
  }
  editor_.load(fullCatalogue());
  EXPECT_TRUE(screen().fraCyclePart.isEnabled());
  EXPECT_TRUE(screen().fraSelectedMacro.isEnabled());
}

TEST_F(EditorControlTest, ACatalogueThatHoldsNothingIsNotEmpty) {
  editor_.load("<LATESTKAM/>");
  EXPECT_THAT(screen().cboAtom.items(), ElementsAre("REPEAT", "END"));
  editor_.load("<OTHER/>");
  EXPECT_THAT(screen().cboAtom.items(), ElementsAre("REPEAT", "END"));
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(EditorControlTest, ACycleThatIsNoneGivesAnEmptyEditor) {
  for (const char* cycle : {"", "abc", "µµµ", "<a", "no cycle at all"}) {
    editor_.load(fullCatalogue(), cycle);
    expectEmptyCycle();
    EXPECT_FALSE(control().CycleChanged()) << cycle;
  }
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(EditorControlTest, ASecondLoadReplacesEverything) {
  const std::vector<std::string> seconds = {"", "no XML", "<a>", "<CYCLE/>", cycleOf({})};
  for (const std::string& second : seconds) {
    editor_.load(fullCatalogue(), fullCycle());
    screen().txtCycleDescription.replace("typed");
    editor_.load(fullCatalogue(), second);
    expectEmptyCycle();
    EXPECT_THAT(editor_.gridKeys(), IsEmpty()) << second;
    EXPECT_EQ(control().RetrieveCycle(), "") << second;
  }
  editor_.load(fullCatalogue(), fullCycle());
  editor_.load(fullCatalogue(), fullCycle());
  EXPECT_THAT(editor_.lines(), ElementsAre("01 MIX", "02 WAIT"));
  EXPECT_EQ(control().atoms().Count(), 2);
}

TEST_F(EditorControlTest, ANewCatalogueReplacesThePickersItems) {
  editor_.load(catalogueOf({"A", "B"}));
  editor_.choose("B");
  editor_.load(catalogueOf({"C"}));
  EXPECT_THAT(screen().cboAtom.items(), ElementsAre("C", "REPEAT", "END"));
  EXPECT_EQ(screen().cboAtom.text(), "");
}

TEST_F(EditorControlTest, TheConfigurationIsReadWhenItIsNeeded) {
  control().SetConfigXML("no XML at all");
  EXPECT_THAT(editor_.errors, IsEmpty());
  editor_.load(catalogueOf({"A"}));
  EXPECT_THAT(screen().cboAtom.items(), ElementsAre("A", "REPEAT", "END"));
  control().SetConfigXML("<Config><FurtherAtoms><ATOM><AtomName>B</AtomName></ATOM></FurtherAtoms></Config>");
  EXPECT_THAT(screen().cboAtom.items(), ElementsAre("A", "REPEAT", "END")) << "nothing is refilled";
  editor_.load(catalogueOf({"A"}));
  EXPECT_THAT(screen().cboAtom.items(), ElementsAre("A", "B", "REPEAT", "END"));
}

TEST_F(EditorControlTest, IgnoreHiddenTakesEffectAtTheNextLoad) {
  control().SetConfigXML(
      "<Config><FurtherAtoms><ATOM Hidden=\"1\"><AtomName>B</AtomName></ATOM>"
      "<ATOM Hidden=\"1\"><AtomName>A</AtomName><Param>Level;1;3;3;1;None</Param></ATOM></FurtherAtoms></Config>");
  editor_.load(catalogueOf({"A"}));
  control().Ignore_Hidden(true);
  EXPECT_THAT(screen().cboAtom.items(), ElementsAre("A", "REPEAT", "END"));
  editor_.choose("A");
  EXPECT_THAT(editor_.gridKeys(), IsEmpty()) << "nor further parameters";
  editor_.load(catalogueOf({"A"}));
  EXPECT_THAT(screen().cboAtom.items(), ElementsAre("A", "B", "REPEAT", "END"));
  editor_.choose("A");
  EXPECT_THAT(editor_.gridKeys(), ElementsAre("Level"));
}

TEST_F(EditorControlTest, ChangingTheDescriptionSetsTheChangedFlag) {
  editor_.load(fullCatalogue(), fullCycle());
  screen().txtCycleDescription.replace("text!");
  EXPECT_TRUE(control().changedFlag());
  editor_.load(fullCatalogue(), fullCycle());
  EXPECT_FALSE(control().changedFlag());
}

TEST_F(EditorControlTest, TheGridTimerSelectsTheFirstRowOnce) {
  editor_.load(fullCatalogue());
  editor_.choose("MIX");
  screen().GrdAtom.makeCurrent(2);
  screen().tmrUpdateGrid.fire();
  EXPECT_FALSE(screen().tmrUpdateGrid.isEnabled());
  EXPECT_EQ(screen().GrdAtom.Row(), 1);
  EXPECT_EQ(control().currentGridRow(), 1);
  screen().GrdAtom.makeCurrent(2);
  screen().tmrUpdateGrid.fire();
  EXPECT_EQ(screen().GrdAtom.Row(), 2) << "off";
}

TEST_F(EditorControlTest, TheGridTimerLeavesAnEmptyGrid) {
  editor_.load(fullCatalogue());
  editor_.choose("WAIT");
  screen().tmrUpdateGrid.fire();
  EXPECT_FALSE(screen().tmrUpdateGrid.isEnabled());
  EXPECT_EQ(screen().GrdAtom.Row(), 0);
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(EditorControlTest, ADoubleClickClearsTheSelectionAndLeavesTheGrid) {
  editor_.load(fullCatalogue(), fullCycle());
  screen().lstAtomSequence.doubleClick(0);
  EXPECT_EQ(editor_.selected(), -1);
  EXPECT_EQ(screen().cboAtom.text(), "MIX");
  EXPECT_THAT(editor_.gridValues(), ElementsAre("5", "3"));
}

TEST_F(EditorControlTest, ABrokenCycleIsReportedAndWhatWasFilledStays) {
  editor_.load(fullCatalogue(), "<CYCLE><DESCRIPTION>//text</DESCRIPTION><VARIABLES/></CYCLE>");
  EXPECT_THAT(editor_.failedProcedures(), ElementsAre("FillCycle "));
  EXPECT_EQ(screen().txtCycleDescription.text(), "text");
  EXPECT_THAT(screen().cboAtom.items(), SizeIs(4));
}

/// An XML service that can be switched off.
class SwitchedDocuments : public platform::XmlDocumentFactory {
 public:
  std::unique_ptr<platform::XmlDocument> createDocument() override {
    if (!on) throw std::runtime_error("off");
    return documents_.createDocument();
  }
  bool readDocument(std::string_view text, platform::XmlContent& content) override {
    if (!on) throw std::runtime_error("off");
    return documents_.readDocument(text, content);
  }
  std::optional<platform::XmlFault> faultIn(std::string_view text) override { return documents_.faultIn(text); }
  bool on = true;

 private:
  libxml2::Libxml2DocumentFactory documents_;
};

TEST(EditorControlFailures, LeaveNoMember) {
  test::TestPlatform platform;
  SwitchedDocuments documents;
  std::vector<std::string> failed;
  memory::HeadlessEditor editor(
      {documents, platform.messageBox, platform.systemMessage, platform.codePage, platform.clock},
      [&](const CycleEditorErrorEvent& event) { failed.push_back(event.strProcedure); });
  EditorControl& control = editor.control();
  // It takes a document to know how this name is written.
  control.SetXMLStrings(catalogueOf({"A"}), cycleOf({"R&amp;D"}));
  control.SetConfigXML("<Config/>");
  EXPECT_THAT(failed, IsEmpty());
  documents.on = false;
  EXPECT_NO_THROW(EXPECT_EQ(control.RetrieveCycle(), ""));
  EXPECT_THAT(failed, Contains("RetrieveCycleVersion03 "));
  EXPECT_NO_THROW(control.SetXMLStrings(catalogueOf({"A"}), cycleOf({"A"})));
  EXPECT_THAT(failed, Contains("SetXMLStrings "));
  EXPECT_NO_THROW(control.CycleChanged());
  EXPECT_NO_THROW(control.ResetCycle("<CYCLE/>"));
  EXPECT_NO_THROW(control.Ignore_Hidden(true));
  documents.on = true;
  failed.clear();
  control.SetXMLStrings(catalogueOf({"A"}), cycleOf({"A"}));
  EXPECT_THAT(failed, IsEmpty());
  EXPECT_THAT(editor.screen().lstAtomSequence.items(), ElementsAre("01 A"));
}

TEST(EditorControlFailures, AHostsHandlerThatThrowsIsOnItsOwn) {
  test::TestPlatform platform;
  memory::HeadlessEditor editor(platform.services(),
                                [](const CycleEditorErrorEvent&) { throw std::runtime_error("host"); });
  EXPECT_NO_THROW(editor.control().SetXMLStrings("", ""));
  EXPECT_NO_THROW(editor.control().SetXMLStrings(catalogueOf({"A"}), cycleOf({"A"})));
  EXPECT_THAT(editor.screen().lstAtomSequence.items(), ElementsAre("01 A"));
}

TEST(EditorControlFailures, NoHandlerIsNeeded) {
  test::TestPlatform platform;
  memory::HeadlessEditor editor(platform.services());
  EXPECT_NO_THROW(editor.control().SetXMLStrings("", ""));
}

TEST(TwoEditors, ShareNothing) {
  test::TestEditor first;
  test::TestEditor second;
  first.control().SetConfigXML(
      "<Config><FurtherAtoms><ATOM Hidden=\"1\"><AtomName>FURTHER</AtomName></ATOM></FurtherAtoms></Config>");
  first.control().Ignore_Hidden(true);
  test::Catalogue catalogue;
  catalogue.atoms = {{"MIX", {"#Mode;0;0;0;7"}}};
  catalogue.lists = {{"7", "slow;fast"}};
  first.load(xmlOf(catalogue), cycleOf({"MIX"}));
  second.load(test::catalogueWith({"#Mode;0;0;0;7"}), cycleOf({"ATOM", "ATOM"}));
  first.screen().txtCycleDescription.replace("first");
  second.load("", "");
  EXPECT_THAT(first.screen().cboAtom.items(), ElementsAre("MIX", "FURTHER", "REPEAT", "END"));
  EXPECT_THAT(first.lines(), ElementsAre("01 MIX"));
  EXPECT_TRUE(first.control().changedFlag());
  EXPECT_TRUE(first.screen().fraCyclePart.isEnabled());
  EXPECT_THAT(first.errors, IsEmpty());
  EXPECT_THAT(second.errors, SizeIs(1));
  second.load(catalogueOf({"A"}), cycleOf({"A"}));
  EXPECT_THAT(second.screen().cboAtom.items(), ElementsAre("A", "REPEAT", "END"));
  EXPECT_FALSE(second.control().changedFlag());
  first.choose("MIX");
  EXPECT_THAT(first.pickList(1), ElementsAre("slow", "fast")) << "each has its own catalogue";
}

}  // namespace
}  // namespace mavCycEd
