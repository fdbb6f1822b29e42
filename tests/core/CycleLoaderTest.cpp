#include "panels/CycleLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "TestDocuments.h"
#include "TestPlatform.h"
#include "memory/MemoryComboBox.h"
#include "memory/MemoryListBox.h"
#include "memory/MemoryTextBox.h"
#include "memory/MemoryValueList.h"
#include "panels/CycleView.h"

namespace mavCycEd {
namespace {

using test::CycleOf;
using test::cycleOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A line that no cycle has.
class OneLine : public platform::ListLines {
 public:
  int count() const override { return 1; }
  std::string text(int) const override { return "01 MIX"; }
  int longest() const override { return 0; }
};

class CycleLoaderTest : public ::testing::Test {
 protected:
  CycleLoaderTest() {
    lstAtomSequence_.setEvents({.Click = [this] { loader_.lstAtomSequence_Click(); }, .DblClick = {}});
    for (const char* name : {"MIX", "WAIT", "mix"}) cboAtom_.addItem(name);
    cboAtom_.setEvents({.Click = [this] { ++picks_; }, .LostFocus = {}});
    for (const char* key : {"Volume", "Speed", "Note"}) GrdAtom_.InsertRow(key, "old", true);
  }

  void fill(std::string_view xml) {
    cycle_.working = readCycle(xml, xml_);
    loader_.FillCycle();
  }
  std::string descriptionFrom(std::string_view stored) {
    CycleOf cycle;
    cycle.description = stored;
    fill(xmlOf(cycle));
    return txtCycleDescription_.text();
  }
  std::vector<std::string> names() const {
    std::vector<std::string> result;
    for (const AtomLine& line : cycle_.cycle().lines) result.push_back(line.name);
    return result;
  }
  /// The parameter text of the one atom line with these parameters.
  std::string parametersFrom(const std::vector<std::pair<std::string, std::string>>& parameters) {
    cycle_.document.load({});
    CycleOf cycle;
    cycle.lines = {{"MIX", parameters}};
    fill(xmlOf(cycle));
    return cycle_.cycle().lines.front().parameters.text();
  }
  /// Selects a line with this parameter text; the values that the grid then shows.
  std::vector<std::string> valuesShownFor(const std::string& parameters) {
    for (int row = 1; row <= 3; ++row) GrdAtom_.setValue(1, row, "old");
    cycle_.document.load({"", {}, {{"MIX", ParameterText(parameters)}}, {}});
    cycle_.display.rebuild();
    lstAtomSequence_.showLines(cycle_.display);
    lstAtomSequence_.setIndex(0);
    return {GrdAtom_.cellText(1, 1), GrdAtom_.cellText(1, 2), GrdAtom_.cellText(1, 3)};
  }

  libxml2::Libxml2DocumentFactory xml_;
  CycleState cycle_;
  memory::MemoryTextBox txtCycleDescription_{nullptr};
  memory::MemoryItemListBox lstVariables_{nullptr};
  memory::MemoryLineListBox lstAtomSequence_{nullptr};
  memory::MemoryComboBox cboAtom_{nullptr};
  memory::MemoryValueList GrdAtom_{nullptr};
  test::RecordingSink sink_;
  GridState grid_;
  CycleScreen screen_{txtCycleDescription_, lstVariables_, lstAtomSequence_};
  ExtraValues extraValues_{GrdAtom_, grid_, cycle_.cycle(), sink_};
  CycleView view_{cycle_, screen_, extraValues_, sink_};
  CycleLoader loader_{cycle_, screen_, cboAtom_, GrdAtom_, sink_};
  int picks_ = 0;
};

TEST_F(CycleLoaderTest, FillsDescriptionVariablesAtomLinesAndSequence) {
  CycleOf cycle;
  cycle.description = "//Größe";
  cycle.variables = {"Vol;ml;1;0;9", "Rack;TRAY"};
  cycle.lines = {{"MIX", {{"Volume", "10"}, {"Speed", "5"}}}, {"WAIT", {}}};
  fill(xmlOf(cycle));
  EXPECT_EQ(txtCycleDescription_.text(), "Größe");
  EXPECT_THAT(lstVariables_.items(), ElementsAre("Vol;ml;1;0;9", "Rack;TRAY"));
  EXPECT_THAT(names(), ElementsAre("MIX", "WAIT"));
  EXPECT_EQ(cycle_.cycle().lines.front().parameters.text(), "Volume;10\rSpeed;5");
  EXPECT_THAT(lstAtomSequence_.items(), ElementsAre("01 MIX", "02 WAIT"));
  EXPECT_THAT(sink_.reports, IsEmpty());
}

TEST_F(CycleLoaderTest, ReplacesWhatTheScreenShowedButAddsToTheAtomLines) {
  fill(cycleOf({"MIX"}));
  txtCycleDescription_.setText("old");
  lstVariables_.addItem("old");
  fill(cycleOf({"WAIT"}));
  EXPECT_EQ(txtCycleDescription_.text(), "");
  EXPECT_THAT(lstVariables_.items(), IsEmpty());
  EXPECT_THAT(names(), ElementsAre("MIX", "WAIT"));
  EXPECT_THAT(lstAtomSequence_.items(), ElementsAre("01 MIX", "02 WAIT"));
}

TEST_F(CycleLoaderTest, WithoutVariablesNothingIsLoaded) {
  txtCycleDescription_.setText("old");
  lstVariables_.addItem("old");
  fill(
      "<CYCLE><DESCRIPTION>//new</DESCRIPTION><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>MIX</ATOMNAME></ATOM></ATOMS>"
      "</ATOMSEQUENCE></CYCLE>");
  EXPECT_EQ(txtCycleDescription_.text(), "");
  EXPECT_THAT(lstVariables_.items(), IsEmpty());
  EXPECT_THAT(lstAtomSequence_.items(), IsEmpty());
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_THAT(sink_.reports, IsEmpty());
}

TEST_F(CycleLoaderTest, TheMarkerIsTakenOffWhereverItStands) {
  EXPECT_EQ(descriptionFrom("//"), "");
  EXPECT_EQ(descriptionFrom("//a//b"), "ab");
  EXPECT_EQ(descriptionFrom("///a/b"), "/a/b");
  EXPECT_EQ(descriptionFrom("////"), "");
  EXPECT_EQ(descriptionFrom("plain"), "plain");
  EXPECT_EQ(descriptionFrom(""), "");
}

TEST_F(CycleLoaderTest, TheLinesOfADescriptionGetCarriageReturns) {
  EXPECT_EQ(descriptionFrom("//one\ntwo\n\nthree\n"), "one\r\ntwo\r\n\r\nthree\r\n");
}

TEST_F(CycleLoaderTest, EntitiesInADescriptionBecomeCharacters) {
  EXPECT_EQ(descriptionFrom("//a&lt;b &amp;lt; &quot;c&quot; &apos;d&apos; &gt;"), "a<b &lt; \"c\" 'd' >");
}

TEST_F(CycleLoaderTest, WithoutADescriptionItIsEmpty) {
  txtCycleDescription_.setText("old");
  fill("<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS/></ATOMSEQUENCE></CYCLE>");
  EXPECT_EQ(txtCycleDescription_.text(), "");
  EXPECT_THAT(sink_.reports, IsEmpty());
}

TEST_F(CycleLoaderTest, EveryElementUnderVariablesIsAVariable) {
  fill(
      "<CYCLE><VARIABLES><VALUE>a</VALUE><!-- no --><Other>  b</Other><VALUE></VALUE><VALUE>c<i>d</i></VALUE>"
      "</VARIABLES><ATOMSEQUENCE><ATOMS/></ATOMSEQUENCE></CYCLE>");
  EXPECT_THAT(lstVariables_.items(), ElementsAre("a", "  b", "", "cd"));
}

TEST_F(CycleLoaderTest, ParametersBecomeLinesOfNameAndValue) {
  EXPECT_EQ(parametersFrom({}), "");
  EXPECT_EQ(parametersFrom({{"Volume", "10"}}), "Volume;10");
  EXPECT_EQ(parametersFrom({{"Volume", ""}, {"Größe", " µ "}}), "Volume;\rGröße; µ ");
  EXPECT_EQ(parametersFrom({{"Volume", "10"}, {"", "5"}}), "Volume;10\r;5");
}

TEST_F(CycleLoaderTest, AFirstParameterWithoutANameLosesItsSeparator) {
  EXPECT_EQ(parametersFrom({{"", "5"}}), "5");
  EXPECT_EQ(parametersFrom({{"", ""}}), "");
  EXPECT_EQ(parametersFrom({{"", ""}, {"Volume", "10"}}), "\rVolume;10");
}

TEST_F(CycleLoaderTest, DurationAndGroupIndexAreEmpty) {
  fill(
      "<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>MIX</ATOMNAME><Duration>5</Duration><PARAMETERS/></ATOM>"
      "</ATOMS></ATOMSEQUENCE></CYCLE>");
  EXPECT_THAT(cycle_.cycle().places, IsEmpty());
}

TEST_F(CycleLoaderTest, TheSummaryIsNotRead) {
  fill(
      "<CYCLE><VARIABLES/><CYCLEATOMS><ATOMLINE>WAIT()</ATOMLINE></CYCLEATOMS><ATOMSEQUENCE><ATOMS/></ATOMSEQUENCE>"
      "</CYCLE>");
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_THAT(lstAtomSequence_.items(), IsEmpty());
  EXPECT_EQ(lstAtomSequence_.index(), -1);
}

TEST_F(CycleLoaderTest, TheSequenceIsNumberedAndIndentedFromTheMargin) {
  cycle_.document.load({"", {}, {{"REPEAT", {}}}, {}});
  cycle_.display.rebuild();
  cycle_.document.load({});
  fill(cycleOf({"REPEAT", "A", "REPEAT", "B", "END", "END"}));
  EXPECT_THAT(lstAtomSequence_.items(),
              ElementsAre("01 REPEAT", "02    A", "03    REPEAT", "04       B", "05    END", "06 END"));
}

TEST_F(CycleLoaderTest, TheFirstLineIsSelectedAndShown) {
  CycleOf cycle;
  cycle.lines = {{"WAIT", {{"Volume", "10"}}}, {"MIX", {}}};
  fill(xmlOf(cycle));
  EXPECT_EQ(lstAtomSequence_.index(), 0);
  EXPECT_EQ(cboAtom_.text(), "WAIT");
  EXPECT_EQ(GrdAtom_.cellText(1, 1), "10");
}

TEST_F(CycleLoaderTest, AnAtomLineWithoutANameEndsTheLoading) {
  fill(
      "<CYCLE><DESCRIPTION>//text</DESCRIPTION><VARIABLES><VALUE>Vol</VALUE></VARIABLES><ATOMSEQUENCE><ATOMS>"
      "<ATOM><ATOMNAME>MIX</ATOMNAME><PARAMETERS/></ATOM><ATOM><PARAMETERS/></ATOM>"
      "<ATOM><ATOMNAME>WAIT</ATOMNAME><PARAMETERS/></ATOM></ATOMS></ATOMSEQUENCE></CYCLE>");
  EXPECT_THAT(sink_.procedures(), ElementsAre("FillCycle"));
  EXPECT_EQ(sink_.reports.front().number, 91);
  EXPECT_EQ(txtCycleDescription_.text(), "text");
  EXPECT_THAT(lstVariables_.items(), ElementsAre("Vol"));
  EXPECT_THAT(names(), ElementsAre("MIX"));
  EXPECT_THAT(lstAtomSequence_.items(), IsEmpty());
}

TEST_F(CycleLoaderTest, AParameterWithoutNameOrValueEndsTheLoading) {
  for (const char* parameter : {"<PARAMVALUE>1</PARAMVALUE>", "<PARAMNAME>Volume</PARAMNAME>", ""}) {
    sink_.reports.clear();
    cycle_.document.load({});
    fill("<CYCLE><VARIABLES/><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>MIX</ATOMNAME><PARAMETERS><PARAMETER>" +
         std::string(parameter) + "</PARAMETER></PARAMETERS></ATOM></ATOMS></ATOMSEQUENCE></CYCLE>");
    EXPECT_THAT(sink_.procedures(), ElementsAre("FillCycle")) << parameter;
    EXPECT_THAT(names(), IsEmpty()) << parameter;
  }
}

TEST_F(CycleLoaderTest, ADocumentWithoutASequenceIsAnErrorBehindTheVariables) {
  for (const char* sequence : {"", "<ATOMSEQUENCE/>"}) {
    sink_.reports.clear();
    fill("<CYCLE><DESCRIPTION>//text</DESCRIPTION><VARIABLES><VALUE>Vol</VALUE></VARIABLES>" + std::string(sequence) +
         "</CYCLE>");
    EXPECT_THAT(sink_.procedures(), ElementsAre("FillCycle")) << sequence;
    EXPECT_EQ(txtCycleDescription_.text(), "text");
    EXPECT_THAT(lstVariables_.items(), ElementsAre("Vol"));
  }
}

TEST_F(CycleLoaderTest, SelectingALinePicksItsAtomByTheExactName) {
  fill(cycleOf({"mix", "MIX", "WAIT"}));
  picks_ = 0;
  lstAtomSequence_.setIndex(1);
  EXPECT_EQ(cboAtom_.index(), 0);
  lstAtomSequence_.setIndex(0);
  EXPECT_EQ(cboAtom_.index(), 2);
  EXPECT_EQ(picks_, 2);
}

TEST_F(CycleLoaderTest, SelectingALineOfAnUnknownAtomLeavesThePicker) {
  fill(cycleOf({"WAIT", "UNKNOWN", "Wait"}));
  picks_ = 0;
  lstAtomSequence_.setIndex(1);
  EXPECT_EQ(cboAtom_.text(), "WAIT");
  lstAtomSequence_.setIndex(2);
  EXPECT_EQ(cboAtom_.text(), "WAIT");
  EXPECT_EQ(picks_, 0);
}

TEST_F(CycleLoaderTest, ALinesValuesGoIntoTheRowsInOrder) {
  EXPECT_THAT(valuesShownFor("Volume;10\rSpeed;5\rNote;x"), ElementsAre("10", "5", "x"));
  EXPECT_THAT(valuesShownFor("Other;10"), ElementsAre("10", "old", "old")) << "whatever the parameters are called";
}

TEST_F(CycleLoaderTest, AValueIsWhatStandsBehindTheFirstSeparator) {
  EXPECT_THAT(valuesShownFor("Volume;10;20;\rbare\rNote;"), ElementsAre("10;20;", "bare", ""));
}

TEST_F(CycleLoaderTest, ValuesBeyondTheLastRowAreDropped) {
  EXPECT_THAT(valuesShownFor("A;1\rB;2\rC;3\rD;4\rE;5"), ElementsAre("1", "2", "3"));
  EXPECT_EQ(GrdAtom_.RowCount(), 4);
  EXPECT_THAT(sink_.reports, IsEmpty());
}

TEST_F(CycleLoaderTest, ALineWithoutParametersWritesNothing) {
  EXPECT_THAT(valuesShownFor(""), ElementsAre("old", "old", "old"));
}

TEST_F(CycleLoaderTest, SelectingNoLineDoesNothing) {
  fill(cycleOf({"WAIT"}));
  picks_ = 0;
  lstAtomSequence_.setIndex(-1);
  EXPECT_EQ(picks_, 0);
  EXPECT_EQ(cboAtom_.text(), "WAIT");
  EXPECT_THAT(sink_.reports, IsEmpty());
}

TEST_F(CycleLoaderTest, ADoubleClickRemovesTheSelection) {
  fill(cycleOf({"WAIT", "MIX"}));
  loader_.lstAtomSequence_DblClick();
  EXPECT_EQ(lstAtomSequence_.index(), -1);
  EXPECT_EQ(cboAtom_.text(), "WAIT");
  EXPECT_THAT(lstAtomSequence_.items(), ElementsAre("01 WAIT", "02 MIX"));
}

TEST_F(CycleLoaderTest, ALineWithoutARecordIsReported) {
  fill(cycleOf({"MIX"}));
  cycle_.document.perform(edits::removeLines(0, 1));
  const OneLine line;
  lstAtomSequence_.showLines(line);
  lstAtomSequence_.setIndex(0);
  EXPECT_THAT(sink_.procedures(), ElementsAre("lstAtomSequence_Click"));
  EXPECT_EQ(sink_.reports.front().number, 9);
}

}  // namespace
}  // namespace mavCycEd
