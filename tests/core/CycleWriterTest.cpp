#include "cycle/CycleWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "TestPlatform.h"

namespace mavCycEd {
namespace {

using platform::XmlNode;
using test::parsed;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class CycleWriterTest : public ::testing::Test {
 protected:
  void addAtom(const std::string& name, const std::string& parameters = {}) {
    cycle_.lines.push_back({name, ParameterText(parameters)});
  }
  void setReference(std::string_view xml) { reference_.setLoaded(xml, factsOf(*parsed(xml))); }
  using Writer = std::string (CycleWriter::*)();
  static constexpr std::array<Writer, 3> writers = {
      &CycleWriter::RetrieveCycleVersion02, &CycleWriter::RetrieveCycleVersion03, &CycleWriter::RetrieveNewCycle};
  std::string write(Writer writer) { return (writer_.*writer)(); }

  /// The texts of all elements at a path of the written document.
  std::vector<std::string> texts(std::string_view path, Writer writer = &CycleWriter::RetrieveNewCycle) {
    std::vector<std::string> result;
    const auto document = parsed(write(writer));
    for (const XmlNode& node : document->selectNodes(path)) result.push_back(node.text());
    return result;
  }
  std::vector<std::string> namesOfParameters() {
    return texts("CYCLE/ATOMSEQUENCE/ATOMS/ATOM/PARAMETERS/PARAMETER/PARAMNAME");
  }
  std::vector<std::string> valuesOfParameters() {
    return texts("CYCLE/ATOMSEQUENCE/ATOMS/ATOM/PARAMETERS/PARAMETER/PARAMVALUE");
  }
  std::string description(Writer writer) {
    const std::vector<std::string> found = texts("CYCLE/DESCRIPTION", writer);
    return found.size() == 1 ? found.front() : "not one description";
  }
  std::string timestamp(Writer writer, std::string_view name) {
    const auto attribute = parsed(write(writer))->selectSingleNode("CYCLE").getAttributeNode(name);
    return attribute ? attribute->value : "none";
  }

  Cycle cycle_;
  ReferenceCycle reference_;
  libxml2::Libxml2DocumentFactory xml_;
  test::HandSetClock clock_;
  test::RecordingSink sink_;
  CycleWriter writer_{cycle_, reference_, xml_, clock_, sink_};
};

TEST_F(CycleWriterTest, AnEmptySequenceGivesAnEmptyText) {
  cycle_.variables.emplace_back("Vol;ml;1;0;9");
  cycle_.description = "not lost, only not written";
  for (const Writer writer : writers) EXPECT_EQ(write(writer), "");
  EXPECT_THAT(sink_.reports, IsEmpty());
}

TEST_F(CycleWriterTest, AtomLinesAloneMakeASequence) {
  addAtom("MIX");
  for (const Writer writer : writers) EXPECT_THAT(write(writer), StartsWith("<CYCLE"));
}

TEST_F(CycleWriterTest, TheElementsComeInOrder) {
  addAtom("MIX");
  for (const Writer writer : writers) {
    std::vector<std::string> names;
    const auto document = parsed(write(writer));
    for (const XmlNode& node : document->selectSingleNode("CYCLE").childNodes()) names.emplace_back(node.nodeName());
    EXPECT_THAT(names, ElementsAre("DESCRIPTION", "VARIABLES", "CYCLEATOMS", "ATOMSEQUENCE", "VERSION"));
  }
}

TEST_F(CycleWriterTest, EveryWriterHasItsVersion) {
  addAtom("MIX");
  EXPECT_THAT(texts("CYCLE/VERSION", writers[0]), ElementsAre("02"));
  EXPECT_THAT(texts("CYCLE/VERSION", writers[1]), ElementsAre("03"));
  EXPECT_THAT(texts("CYCLE/VERSION", writers[2]), ElementsAre("03"));
}

TEST_F(CycleWriterTest, Version02HasNoTimestamps) {
  addAtom("MIX");
  setReference("<CYCLE Created=\"2001-01-01T01:01:01\" Modified=\"2002-02-02T02:02:02\"/>");
  EXPECT_EQ(timestamp(writers[0], "Created"), "none");
  EXPECT_EQ(timestamp(writers[0], "Modified"), "none");
}

TEST_F(CycleWriterTest, WithoutAReferenceBothTimestampsAreNow) {
  addAtom("MIX");
  for (const Writer writer : {writers[1], writers[2]}) {
    reference_ = ReferenceCycle();
    EXPECT_EQ(timestamp(writer, "Created"), "2024-03-09T14:05:00");
    EXPECT_EQ(timestamp(writer, "Modified"), "2024-03-09T14:05:00");
    setReference("<CYCLE/>");
    EXPECT_EQ(timestamp(writer, "Created"), "2024-03-09T14:05:00");
    EXPECT_EQ(timestamp(writer, "Modified"), "2024-03-09T14:05:00");
  }
}

TEST_F(CycleWriterTest, Version03KeepsBothTimestampsOfTheReference) {
  addAtom("MIX");
  setReference("<CYCLE Created=\"2001-01-01T01:01:01\" Modified=\"any text\"/>");
  EXPECT_EQ(timestamp(writers[1], "Created"), "2001-01-01T01:01:01");
  EXPECT_EQ(timestamp(writers[1], "Modified"), "any text");
}

TEST_F(CycleWriterTest, ANewCycleKeepsCreatedAndRenewsModified) {
  addAtom("MIX");
  setReference("<CYCLE Created=\"2001-01-01T01:01:01\" Modified=\"2002-02-02T02:02:02\"/>");
  EXPECT_EQ(timestamp(writers[2], "Created"), "2001-01-01T01:01:01");
  EXPECT_EQ(timestamp(writers[2], "Modified"), "2024-03-09T14:05:00");
}

TEST_F(CycleWriterTest, AMissingTimestampIsNowWhateverTheOtherIs) {
  addAtom("MIX");
  setReference("<CYCLE Modified=\"2002-02-02T02:02:02\"/>");
  EXPECT_EQ(timestamp(writers[1], "Created"), "2024-03-09T14:05:00");
  EXPECT_EQ(timestamp(writers[1], "Modified"), "2002-02-02T02:02:02");
  setReference("<CYCLE Created=\"2001-01-01T01:01:01\"/>");
  EXPECT_EQ(timestamp(writers[1], "Created"), "2001-01-01T01:01:01");
  EXPECT_EQ(timestamp(writers[1], "Modified"), "2024-03-09T14:05:00");
}

TEST_F(CycleWriterTest, AnEmptyReferenceLeavesTheTimestampsOfTheOneBefore) {
  addAtom("MIX");
  setReference("<CYCLE Created=\"2001-01-01T01:01:01\" Modified=\"2002-02-02T02:02:02\"/>");
  reference_.setWritten("", {});
  EXPECT_EQ(timestamp(writers[2], "Created"), "2001-01-01T01:01:01");
  reference_.setLoaded("", {});
  EXPECT_EQ(timestamp(writers[2], "Created"), "2024-03-09T14:05:00") << "but not where an empty one was loaded";
}

TEST_F(CycleWriterTest, ADescriptionIsEscapedOnceMoreInVersion02) {
  addAtom("MIX");
  cycle_.description = "a<b & \"c\" 'd'";
  EXPECT_EQ(description(writers[0]), "//a&lt;b &amp; &quot;c&quot; &apos;d&apos;");
  EXPECT_EQ(description(writers[1]), "//a<b & \"c\" 'd'");
  EXPECT_EQ(description(writers[2]), "//a<b & \"c\" 'd'");
}

TEST_F(CycleWriterTest, AnEmptyDescriptionIsTheMarkerAlone) {
  addAtom("MIX");
  for (const Writer writer : writers) EXPECT_EQ(description(writer), "//");
}

TEST_F(CycleWriterTest, TheLinesOfADescriptionEndWithLineFeeds) {
  addAtom("MIX");
  cycle_.description = "Größe\r\n\r\n 10 µl \r\n";
  for (const Writer writer : writers) EXPECT_EQ(description(writer), "//Größe\n\n 10 µl \n");
}

TEST_F(CycleWriterTest, VariablesAreWrittenInOrderAsTheyStand) {
  addAtom("MIX");
  for (const char* variable : {"Vol;ml;1;0;9", "  leading", "Rack;TRAY;RACK", "µ  "})
    cycle_.variables.emplace_back(variable);
  for (const Writer writer : writers) {
    EXPECT_THAT(texts("CYCLE/VARIABLES/VALUE", writer),
                ElementsAre("Vol;ml;1;0;9", "  leading", "Rack;TRAY;RACK", "µ  "));
  }
}

TEST_F(CycleWriterTest, VariablesOfSpacesOnlyAreSkipped) {
  addAtom("MIX");
  for (const char* variable : {"", "A", "   ", "B"}) cycle_.variables.emplace_back(variable);
  for (const Writer writer : writers) EXPECT_THAT(texts("CYCLE/VARIABLES/VALUE", writer), ElementsAre("A", "B"));
}

TEST_F(CycleWriterTest, AnEmptyVariableListStillHasItsElement) {
  addAtom("MIX");
  for (const Writer writer : writers) EXPECT_THAT(texts("CYCLE/VARIABLES", writer), ElementsAre(""));
}

TEST_F(CycleWriterTest, AtomLinesAreWrittenInOrder) {
  addAtom("REPEAT", "Repetitions;3");
  addAtom("");
  addAtom("Größe 1");
  addAtom("END");
  EXPECT_THAT(texts("CYCLE/ATOMSEQUENCE/ATOMS/ATOM/ATOMNAME"), ElementsAre("REPEAT", "", "Größe 1", "END"));
  EXPECT_EQ(texts("CYCLE/ATOMSEQUENCE/ATOMS/ATOM/PARAMETERS").size(), 4U);
}

TEST_F(CycleWriterTest, ParametersHaveNameAndValue) {
  addAtom("MIX", "Volume(µl);10\rSource;  S1 \rNote;");
  EXPECT_THAT(namesOfParameters(), ElementsAre("Volume(µl)", "Source", "Note"));
  EXPECT_THAT(valuesOfParameters(), ElementsAre("10", "  S1 ", ""));
}

TEST_F(CycleWriterTest, TwoValueFieldsMakeTwoParametersOfOneName) {
  addAtom("MIX", "VOLUME;10;20");
  EXPECT_THAT(namesOfParameters(), ElementsAre("VOLUME", "VOLUME"));
  EXPECT_THAT(valuesOfParameters(), ElementsAre("10", "20"));
  EXPECT_THAT(texts("CYCLE/CYCLEATOMS/ATOMLINE"), ElementsAre("MIX(20,)"));
}

TEST_F(CycleWriterTest, ParameterNamesLoseCommasAndThreeLetters) {
  addAtom("MIX", "A,B;1\rÂÃÄµ;2");
  EXPECT_THAT(namesOfParameters(), ElementsAre("AB", "µ"));
  EXPECT_THAT(valuesOfParameters(), ElementsAre("1", "2"));
}

TEST_F(CycleWriterTest, ValuesKeepTheirCommas) {
  addAtom("MIX", "A;1,5Â");
  EXPECT_THAT(valuesOfParameters(), ElementsAre("1,5Â"));
}

TEST_F(CycleWriterTest, ALineWithoutSeparatorHasNoParameter) {
  addAtom("MIX", "bare\rVolume;10");
  EXPECT_THAT(namesOfParameters(), ElementsAre("Volume"));
}

TEST_F(CycleWriterTest, SummariesListValuesEachWithAComma) {
  addAtom("ASPIRATE", "Source;S1\rVolume;10");
  addAtom("WAIT");
  addAtom("MIX", "Note;");
  for (const Writer writer : writers) {
    EXPECT_THAT(texts("CYCLE/CYCLEATOMS/ATOMLINE", writer), ElementsAre("ASPIRATE(S1,10,)", "WAIT()", "MIX(,)"));
  }
}

TEST_F(CycleWriterTest, WhatBreaksTheXmlGivesAnEmptyText) {
  for (const char* parameters : {"A;1<2", "A;R&D", "A<B;1", "A;]]>"}) {
    cycle_.lines = {{"MIX", ParameterText(parameters)}};
    for (const Writer writer : writers) EXPECT_EQ(write(writer), "") << parameters;
  }
  cycle_.lines.clear();
  addAtom("R&D");
  for (const Writer writer : writers) EXPECT_EQ(write(writer), "");
  cycle_.lines.clear();
  addAtom("MIX");
  cycle_.variables.emplace_back("a<b");
  for (const Writer writer : writers) EXPECT_EQ(write(writer), "");
  EXPECT_THAT(sink_.reports, IsEmpty());
}

TEST_F(CycleWriterTest, AnEntityInAValueIsParsed) {
  addAtom("MIX", "A;R&amp");
  EXPECT_EQ(write(writers[2]), "");
  cycle_.lines = {{"R&#38;D", {}}};
  EXPECT_THAT(texts("CYCLE/ATOMSEQUENCE/ATOMS/ATOM/ATOMNAME"), ElementsAre("R&D"));
}

TEST_F(CycleWriterTest, TheDocumentHasOneElementPerLine) {
  addAtom("MIX", "Volume(µl);10");
  cycle_.variables.emplace_back("Vol;ml;1;0;9");
  cycle_.description = "Größe";
  std::string text = write(writers[2]);
  if (text.ends_with('\n')) text.pop_back();
  EXPECT_EQ(text, R"(<CYCLE Created="2024-03-09T14:05:00" Modified="2024-03-09T14:05:00">
  <DESCRIPTION>//Größe</DESCRIPTION>
  <VARIABLES>
    <VALUE>Vol;ml;1;0;9</VALUE>
  </VARIABLES>
  <CYCLEATOMS>
    <ATOMLINE>MIX(10,)</ATOMLINE>
  </CYCLEATOMS>
  <ATOMSEQUENCE>
    <ATOMS>
      <ATOM>
        <ATOMNAME>MIX</ATOMNAME>
        <PARAMETERS>
          <PARAMETER>
            <PARAMNAME>Volume(µl)</PARAMNAME>
            <PARAMVALUE>10</PARAMVALUE>
          </PARAMETER>
        </PARAMETERS>
      </ATOM>
    </ATOMS>
  </ATOMSEQUENCE>
  <VERSION>03</VERSION>
</CYCLE>)");
}

TEST_F(CycleWriterTest, FailuresAreReportedUnderTheWritersName) {
  addAtom("R&amp;D");  // it takes a document to know how this is written
  test::BrokenDocumentFactory broken;
  CycleWriter writer(cycle_, reference_, broken, clock_, sink_);
  for (const Writer member : writers) EXPECT_EQ((writer.*member)(), "");
  EXPECT_THAT(sink_.procedures(), ElementsAre("RetrieveCycleVersion02", "RetrieveCycleVersion03", "RetrieveNewCycle"));
  EXPECT_EQ(sink_.reports.front().number, 78);
}

TEST_F(CycleWriterTest, AClockThatFailsEndsTheWritersThatNeedIt) {
  addAtom("MIX");
  const test::BrokenClock broken;
  CycleWriter writer(cycle_, reference_, xml_, broken, sink_);
  EXPECT_THAT(writer.RetrieveCycleVersion02(), StartsWith("<CYCLE"));
  EXPECT_EQ(writer.RetrieveCycleVersion03(), "");
  EXPECT_EQ(writer.RetrieveNewCycle(), "");
  EXPECT_THAT(sink_.procedures(), ElementsAre("RetrieveCycleVersion03", "RetrieveNewCycle"));
}

}  // namespace
}  // namespace mavCycEd
