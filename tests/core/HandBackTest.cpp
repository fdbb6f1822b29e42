#include "control/HandBack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "TestDocuments.h"
#include "TestEditor.h"

namespace mavCycEd {
namespace {

using test::parsed;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string textAt(std::string_view xml, std::string_view path) {
  const auto document = parsed(xml);
  const platform::XmlNode node = document->selectSingleNode(path);
  return node ? node.text() : "none";
}

std::string attributeOf(std::string_view xml, std::string_view name) {
  const auto attribute = parsed(xml)->selectSingleNode("CYCLE").getAttributeNode(name);
  return attribute ? attribute->value : "none";
}

/// A cycle as version 02 writes it.
constexpr std::string_view version02 =
    "<CYCLE><DESCRIPTION>//a&amp;lt;b</DESCRIPTION><VARIABLES/><CYCLEATOMS><ATOMLINE>A()</ATOMLINE></CYCLEATOMS>"
    "<ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>A</ATOMNAME><PARAMETERS/></ATOM></ATOMS></ATOMSEQUENCE>"
    "<VERSION>02</VERSION></CYCLE>";

/// A cycle as version 03 writes it, with this version text.
std::string version03(const std::string& version = "03") {
  return "<CYCLE Created=\"2001-01-01T01:01:01\" Modified=\"2002-02-02T02:02:02\"><DESCRIPTION>//a&lt;b</DESCRIPTION>"
         "<VARIABLES/><CYCLEATOMS><ATOMLINE>A()</ATOMLINE></CYCLEATOMS><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>A</"
         "ATOMNAME>"
         "<PARAMETERS/></ATOM></ATOMS></ATOMSEQUENCE><VERSION>" +
         version + "</VERSION></CYCLE>";
}

class HandBackTest : public ::testing::Test {
 protected:
  void load(std::string_view cycle) { editor_.load(test::catalogueOf({"A", "B"}), cycle); }
  std::string retrieve() { return editor_.control().RetrieveCycle(); }
  bool changed() {
    const bool result = editor_.control().CycleChanged();
    EXPECT_EQ(editor_.control().changedFlag(), result);
    return result;
  }
  void describe(std::string_view text) { editor_.screen().txtCycleDescription.replace(text); }

  test::TestEditor editor_;
};

TEST_F(HandBackTest, AnAnswerWhileTheDialogIsOpenDoesNotHideWhatTheDialogAdds) {
  load(version03());
  editor_.screen().cboAtom.setIndex(0);
  editor_.screen().variableDialogs.setUser([this](memory::MemoryVariableDialogControls& dialog) {
    editor_.control().CycleChanged();
    dialog.txtParamName.replace("V");
    dialog.grdParamStnd.type(1, "1");
    dialog.grdParamStnd.type(2, "0");
    dialog.grdParamStnd.type(3, "2");
    dialog.OKButton.press();
  });
  EXPECT_THAT(retrieve(), HasSubstr("<VARIABLES/>"));
  EXPECT_FALSE(changed());
  editor_.screen().cmdIns.press();
  EXPECT_EQ(editor_.screen().lstVariables.itemCount(), 1);
  EXPECT_TRUE(changed());
}

TEST_F(HandBackTest, BeforeAnythingIsLoadedThereIsNoCycleAndNoChange) {
  EXPECT_EQ(retrieve(), "");
  EXPECT_FALSE(changed());
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(HandBackTest, ANewCycleIsWrittenInTheNewestFormat) {
  load("");
  editor_.choose("A");
  editor_.insert();
  const std::string cycle = retrieve();
  EXPECT_EQ(textAt(cycle, "CYCLE/VERSION"), "03");
  EXPECT_EQ(attributeOf(cycle, "Created"), "2024-03-09T14:05:00");
  EXPECT_EQ(attributeOf(cycle, "Modified"), "2024-03-09T14:05:00");
}

TEST_F(HandBackTest, AnUnchangedCycleOfVersion02ReadsUnchangedAndComesBackInTheNewestFormat) {
  load(version02);
  EXPECT_FALSE(changed());
  const std::string cycle = retrieve();
  EXPECT_EQ(textAt(cycle, "CYCLE/VERSION"), "03");
  EXPECT_EQ(textAt(cycle, "CYCLE/DESCRIPTION"), "//a<b");
  EXPECT_EQ(attributeOf(cycle, "Created"), "2024-03-09T14:05:00");
  EXPECT_FALSE(changed());
}

TEST_F(HandBackTest, AnUnchangedCycleOfVersion03KeepsItsTimestamps) {
  load(version03());
  EXPECT_FALSE(changed());
  const std::string cycle = retrieve();
  EXPECT_EQ(attributeOf(cycle, "Created"), "2001-01-01T01:01:01");
  EXPECT_EQ(attributeOf(cycle, "Modified"), "2002-02-02T02:02:02");
}

TEST_F(HandBackTest, AChangedCycleOfVersion03RenewsModifiedOnly) {
  load(version03());
  describe("other");
  EXPECT_TRUE(changed());
  const std::string cycle = retrieve();
  EXPECT_EQ(attributeOf(cycle, "Created"), "2001-01-01T01:01:01");
  EXPECT_EQ(attributeOf(cycle, "Modified"), "2024-03-09T14:05:00");
  EXPECT_FALSE(changed());
}

TEST_F(HandBackTest, ACycleWithoutVersionCountsAsOld) {
  std::string cycle(version02);
  cycle.erase(cycle.find("<VERSION>"), std::string_view("<VERSION>02</VERSION>").size());
  load(cycle);
  EXPECT_TRUE(changed()) << "the old format has a version";
  EXPECT_EQ(textAt(retrieve(), "CYCLE/VERSION"), "03");
  EXPECT_FALSE(changed());
}

TEST_F(HandBackTest, VersionsAreComparedAsNumbers) {
  for (const char* version : {"3", "3.5", "04", " 03 ", "1e1"}) {
    load(version03(version));
    EXPECT_TRUE(changed()) << "written as 03";
    EXPECT_EQ(attributeOf(retrieve(), "Created"), "2001-01-01T01:01:01") << version;
  }
  for (const char* version : {"2", "2.9", "-3", "0"}) {
    load(version03(version));
    EXPECT_EQ(attributeOf(retrieve(), "Modified"), "2024-03-09T14:05:00") << version;
  }
}

TEST_F(HandBackTest, AVersionThatIsNoNumberHandsBackNothingOnce) {
  for (const char* version : {"abc", "03x", "3,0"}) {
    load(version03(version));
    EXPECT_FALSE(changed()) << version;
    EXPECT_EQ(retrieve(), "") << version;
    EXPECT_EQ(textAt(retrieve(), "CYCLE/VERSION"), "03") << "nothing is the new baseline, and a new cycle follows";
  }
}

TEST_F(HandBackTest, TypingAndUndoingReadsUnchanged) {
  load(version03());
  describe("a<b!");
  EXPECT_TRUE(editor_.control().changedFlag());
  EXPECT_TRUE(changed());
  describe("a<b");
  EXPECT_TRUE(editor_.control().changedFlag());
  EXPECT_FALSE(changed());
}

TEST_F(HandBackTest, ChangedLinesReadChangedUntilTheyAreAsBefore) {
  load(version03());
  editor_.select(0);
  editor_.choose("B");
  editor_.insert();
  EXPECT_TRUE(changed());
  editor_.remove();
  EXPECT_FALSE(changed());
}

TEST_F(HandBackTest, AnEmptiedSequenceReadsUnchanged) {
  load(version03());
  editor_.remove();
  EXPECT_TRUE(editor_.control().changedFlag());
  EXPECT_FALSE(changed());
  EXPECT_EQ(retrieve(), "");
}

TEST_F(HandBackTest, TheHandBackIsTheNewBaseline) {
  load("");
  editor_.choose("A");
  editor_.insert();
  const std::string first = retrieve();
  EXPECT_FALSE(changed());
  editor_.platform.clock.now = "2025-01-01T00:00:00";
  EXPECT_EQ(retrieve(), first);
  describe("new");
  EXPECT_TRUE(changed());
  const std::string second = retrieve();
  EXPECT_EQ(attributeOf(second, "Created"), "2024-03-09T14:05:00") << "the first hand-back fixes it for good";
  EXPECT_EQ(attributeOf(second, "Modified"), "2025-01-01T00:00:00");
}

TEST_F(HandBackTest, DeclarationCommentsAndLayoutAreNoChange) {
  std::string cycle = version03();
  cycle.insert(cycle.find("<VARIABLES"), "\r\n\t\t");
  load("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\r\n<!-- saved -->\r\n" + cycle + "\r\n<!-- end -->\r\n");
  EXPECT_FALSE(changed());
}

TEST_F(HandBackTest, LinesOfADescriptionAreNoChange) {
  load("");
  editor_.choose("A");
  editor_.insert();
  describe("Größe\nin µl\n\n  °C \n");
  const std::string cycle = retrieve();
  EXPECT_FALSE(changed());
  test::TestEditor other;
  other.load(test::catalogueOf({"A"}), cycle);
  EXPECT_FALSE(other.control().CycleChanged());
  EXPECT_EQ(other.control().RetrieveCycle(), cycle);
  EXPECT_EQ(other.screen().txtCycleDescription.text(), "Größe\r\nin µl\r\n\r\n  °C \r\n");
}

TEST_F(HandBackTest, ResettingTheCycleLeavesScreenAndBaseline) {
  load(version03());
  editor_.control().ResetCycle(test::cycleOf({"B", "B"}));
  EXPECT_THAT(editor_.lines(), ::testing::ElementsAre("01 A"));
  EXPECT_EQ(editor_.screen().txtCycleDescription.text(), "a<b");
  EXPECT_FALSE(changed());
  EXPECT_EQ(attributeOf(retrieve(), "Created"), "2001-01-01T01:01:01");
}

TEST_F(HandBackTest, ACycleThatCannotBeWrittenIsHandedBackEmpty) {
  load(version03());
  editor_.control().Perform(edits::replaceLine(0, {"R&D", {}}), "Change");
  EXPECT_FALSE(changed()) << "nothing is written that could differ";
  EXPECT_EQ(retrieve(), "");
  ASSERT_EQ(editor_.errors.size(), 1U) << "told by whoever found it first";
  EXPECT_EQ(editor_.errors.front().lngError, mavCycEdErrorInvalidXML);
  EXPECT_EQ(editor_.errors.front().strProcedure, "CycleChanged ");
  EXPECT_THAT(editor_.errors.front().strError, ::testing::HasSubstr("the atom name \"R&D\" in line 1"));
}

TEST_F(HandBackTest, ASpoiledCycleIsToldOnceForEachStateOfIt) {
  load(version03());
  EditorControl& control = editor_.control();
  control.Perform(edits::replaceLine(0, {"A", ParameterText("Amount;<")}), "Change");
  retrieve();
  retrieve();
  changed();
  ASSERT_EQ(editor_.errors.size(), 1U);
  EXPECT_EQ(editor_.errors.front().strProcedure, "RetrieveCycle ");
  EXPECT_THAT(editor_.errors.front().strError,
              ::testing::HasSubstr("the value \"<\" of the parameter \"Amount\" in line 1"));
  control.Perform(edits::insertVariable(0, VariableDefinition("a&b;T")), "Change");
  control.Perform(edits::replaceLine(0, {"A", {}}), "Change");
  changed();
  ASSERT_EQ(editor_.errors.size(), 2U);
  EXPECT_THAT(editor_.errors.back().strError, ::testing::HasSubstr("the variable \"a&b;T\""));
  editor_.control().Undo();
  changed();
  editor_.control().Redo();
  changed();
  EXPECT_EQ(editor_.errors.size(), 3U) << "the state in between is another one, and the last one was told";
}

TEST_F(HandBackTest, AnEmptySequenceAndAVersionThatIsNoNumberAreNoSpoiledCycles) {
  load(version03());
  editor_.select(0);
  editor_.remove();
  EXPECT_EQ(retrieve(), "");
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(HandBackTest, TheTimeOfCreationOutlivesAnEmptyHandBack) {
  load(version03());
  editor_.select(0);
  editor_.remove();
  EXPECT_EQ(retrieve(), "");
  editor_.choose("A");
  editor_.insert();
  EXPECT_EQ(attributeOf(retrieve(), "Created"), "2001-01-01T01:01:01");
}

TEST(HandBackCodePage, ComparesInTheSystemsCodePage) {
  /// Knows ASCII only.
  class AsciiCodePage : public platform::CodePage {
   public:
    std::string fromUtf8(std::string_view text) const override {
      std::string result;
      for (const char byte : text) {
        const auto value = static_cast<unsigned char>(byte);
        if (value < 0x80) result += byte;
        if (value >= 0xC0) result += '?';
      }
      return result;
    }
  };
  test::TestPlatform platform;
  AsciiCodePage codePage;
  memory::HeadlessEditor editor({platform.xml, platform.messageBox, platform.systemMessage, codePage, platform.clock});
  test::CycleOf cycle;
  cycle.lines = {{"A", {}}};
  editor.control().SetXMLStrings(test::catalogueOf({"A"}), xmlOf(cycle));
  editor.screen().txtCycleDescription.replace("ä");
  editor.control().RetrieveCycle();
  editor.screen().txtCycleDescription.replace("ö");
  EXPECT_FALSE(editor.control().CycleChanged()) << "both are the substitute";
  editor.screen().txtCycleDescription.replace("o");
  EXPECT_TRUE(editor.control().CycleChanged());
}

TEST(HandBackCodePage, OneLetterIsAChangeInUtf8) {
  test::TestEditor editor;
  editor.load(test::catalogueOf({"A"}), test::cycleOf({"A"}));
  editor.screen().txtCycleDescription.replace("10 \u00B5l");
  editor.control().RetrieveCycle();
  editor.screen().txtCycleDescription.replace("10 \u03BCl");
  EXPECT_TRUE(editor.control().CycleChanged());
}

}  // namespace
}  // namespace mavCycEd
