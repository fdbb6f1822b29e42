#include "Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "ControlDriver.h"
#include "MemoryDriver.h"
#include "Output.h"
#include "Scenario.h"
#include "libxml2/Libxml2DocumentFactory.h"
#include "memory/MemoryServices.h"

namespace mavCycEd::play {
namespace {

using namespace std::string_literals;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

/// A folder for the files of one test.
class Folder {
 public:
  Folder() {
    std::random_device random;
    path_ = std::filesystem::path(::testing::TempDir()) /
            ("mavCycEd-player-" + std::to_string(random()) + "-" + std::to_string(random()));
    std::filesystem::create_directories(path_);
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::filesystem::path write(std::string_view name, std::string_view bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return path_ / name;
  }
  std::filesystem::path file(std::string_view name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

class ScenarioTest : public ::testing::Test {
 protected:
  Scenario scenario(std::string_view bytes) const { return Scenario(folder_.write("test.scenario", bytes)); }
  std::vector<std::string> wordsOf(std::string_view line) const {
    Scenario file = scenario(line);
    std::vector<std::string> words;
    for (const Step::Word& word : file.next().words) words.push_back(word.text);
    return words;
  }
  /// The one text of a step "type NAME TEXT".
  std::string textOf(std::string_view literal) const {
    Scenario file = scenario("type txtCycleDescription " + std::string(literal) + "\n");
    const Step step = file.next();
    EXPECT_THAT(step.words, SizeIs(3));
    EXPECT_TRUE(step.words.back().isText);
    return step.words.back().text;
  }
  void expectRefused(std::string_view line) const {
    Scenario file = scenario(line);
    EXPECT_THROW(file.next(), StepRefused) << line;
  }

  Folder folder_;
};

TEST_F(ScenarioTest, WordsAreSeparatedByBlanks) {
  EXPECT_THAT(wordsOf("select  lstAtomSequence   3\n"), ElementsAre("select", "lstAtomSequence", "3"));
  EXPECT_THAT(wordsOf("tick   \n"), ElementsAre("tick"));
}

TEST_F(ScenarioTest, BareWordsAreNoTexts) {
  Scenario file = scenario("select lstAtomSequence 3\n");
  for (const Step::Word& word : file.next().words) EXPECT_FALSE(word.isText) << word.text;
}

TEST_F(ScenarioTest, BlankLinesAndCommentsAreSkippedButCounted) {
  Scenario file = scenario("# first\n\ntick\n   \n#show atoms\nshow state\n# last\n");
  ASSERT_TRUE(file.hasNext());
  EXPECT_EQ(file.nextLine(), 3);
  const Step first = file.next();
  EXPECT_EQ(first.line, 3);
  EXPECT_EQ(first.words.front().text, "tick");
  ASSERT_TRUE(file.hasNext());
  EXPECT_EQ(file.nextLine(), 6);
  const Step second = file.next();
  EXPECT_EQ(second.line, 6);
  EXPECT_EQ(second.words.front().text, "show");
  EXPECT_FALSE(file.hasNext());
}

TEST_F(ScenarioTest, AnEmptyFileHasNoSteps) {
  EXPECT_FALSE(scenario("").hasNext());
  EXPECT_FALSE(scenario("\n\n# nothing\n").hasNext());
}

TEST_F(ScenarioTest, TheLastLineNeedsNoLineEnd) { EXPECT_THAT(wordsOf("show atoms"), ElementsAre("show", "atoms")); }

TEST_F(ScenarioTest, LinesMayEndWithCarriageReturnAndLineFeed) {
  Scenario file = scenario("# comment\r\n\r\nshow atoms\r\ntype txtCycleDescription \"x\"\r\n");
  ASSERT_TRUE(file.hasNext());
  Step step = file.next();
  EXPECT_EQ(step.line, 3);
  EXPECT_EQ(step.words.back().text, "atoms");
  step = file.next();
  EXPECT_EQ(step.line, 4);
  EXPECT_EQ(step.words.back().text, "x");
  EXPECT_FALSE(file.hasNext());
}

TEST_F(ScenarioTest, AByteOrderMarkIsNoPartOfTheFirstStep) {
  EXPECT_THAT(wordsOf("\xEF\xBB\xBFtick\n"), ElementsAre("tick"));
  EXPECT_FALSE(scenario("\xEF\xBB\xBF# comment\n").hasNext());
}

TEST_F(ScenarioTest, LiteralsKeepTheirBlanks) {
  EXPECT_EQ(textOf("\"  two  words \""), "  two  words ");
  EXPECT_EQ(textOf("\"\""), "");
  EXPECT_EQ(textOf("\"# no comment\""), "# no comment");
  EXPECT_EQ(textOf("\"@no-file\""), "@no-file");
}

TEST_F(ScenarioTest, LiteralsUnderstandEveryEscapeOfJson) {
  EXPECT_EQ(textOf(R"("a\"b\\c\/d")"), "a\"b\\c/d");
  EXPECT_EQ(textOf(R"("\b\f\n\r\t")"), "\b\f\n\r\t");
  EXPECT_EQ(textOf(R"("\u00b5l \u00C4")"), "µl Ä");
  EXPECT_EQ(textOf(R"("\ud83e\uddea")"), "\xF0\x9F\xA7\xAA");
  EXPECT_EQ(textOf(R"("\u0000")"), "\0"s);
  EXPECT_EQ(textOf(R"("ends with a backslash\\")"), "ends with a backslash\\");
}

TEST_F(ScenarioTest, LiteralsHoldUmlautsAsTheyStand) { EXPECT_EQ(textOf("\"Größe in µl\""), "Größe in µl"); }

TEST_F(ScenarioTest, AStepMayHaveSeveralLiterals) {
  EXPECT_THAT(wordsOf("SetXMLStrings \"<a b=\\\"1\\\"/>\" \"\"\n"), ElementsAre("SetXMLStrings", "<a b=\"1\"/>", ""));
}

TEST_F(ScenarioTest, ALiteralWithoutClosingQuoteIsRefused) {
  expectRefused("type txtCycleDescription \"open\n");
  expectRefused("type txtCycleDescription \"\n");
  expectRefused("type txtCycleDescription \"ends with an escaped quote\\\"\n");
}

TEST_F(ScenarioTest, ALiteralThatIsNoJsonIsRefused) {
  expectRefused("type txtCycleDescription \"\\x\"\n");
  expectRefused("type txtCycleDescription \"\\u12\"\n");
  expectRefused("type txtCycleDescription \"a\tb\"\n");
}

TEST_F(ScenarioTest, AFileIsReadByteForByte) {
  const std::string bytes = "\xEF\xBB\xBF<a>\r\n\t\xFF\0\n\r  </a>\r\n\r\n"s;
  folder_.write("data.xml", bytes);
  EXPECT_EQ(textOf("@data.xml"), bytes);
  folder_.write("empty.xml", "");
  EXPECT_EQ(textOf("@empty.xml"), "");
}

TEST_F(ScenarioTest, AFileIsLookedForBesideTheScenario) {
  std::filesystem::create_directories(folder_.file("data"));
  folder_.write("data/inner.xml", "inner");
  EXPECT_EQ(textOf("@data/inner.xml"), "inner");
}

TEST_F(ScenarioTest, AFileThatIsNotThereIsRefused) { expectRefused("SetConfigXML @missing.xml\n"); }

TEST_F(ScenarioTest, AScenarioThatIsNotThereIsAnError) {
  EXPECT_THROW(Scenario(folder_.file("missing.scenario")), std::runtime_error);
}

constexpr std::string_view catalogue =
    "<LATESTKAM><ATOMS>"
    "<ATOM><AtomName>MIX</AtomName><Param>Volume;0.5;100;100;1;None</Param><Param>#Mode;0;0;1;7</Param></ATOM>"
    "<ATOM><AtomName>WAIT</AtomName></ATOM>"
    "</ATOMS><LISTS><LIST><A>7</A><B>slow;fast</B></LIST></LISTS></LATESTKAM>";

class PlayerTest : public ::testing::Test {
 protected:
  PlayerTest() {
    folder_.write("catalogue.xml", catalogue);
    folder_.write("cycle.xml",
                  "<CYCLE><DESCRIPTION>//Größe</DESCRIPTION><VARIABLES><VALUE>Vol(ml);1;0;9</VALUE></VARIABLES>"
                  "<ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>MIX</ATOMNAME><PARAMETERS>"
                  "<PARAMETER><PARAMNAME>Volume</PARAMNAME><PARAMVALUE>5</PARAMVALUE></PARAMETER>"
                  "<PARAMETER><PARAMNAME>Mode</PARAMNAME><PARAMVALUE>slow</PARAMVALUE></PARAMETER>"
                  "</PARAMETERS></ATOM><ATOM><ATOMNAME>WAIT</ATOMNAME><PARAMETERS></PARAMETERS></ATOM>"
                  "</ATOMS></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>");
  }

  /// Plays the steps; the result is what was written, a line each.
  std::vector<std::string> play(std::string_view steps) {
    Scenario scenario(folder_.write("test.scenario", steps));
    allRan_ = Player(driver_, output_).play(scenario);
    std::vector<std::string> lines;
    std::istringstream input(output_.str());
    for (std::string line; std::getline(input, line);) lines.push_back(line);
    output_.str({});
    return lines;
  }
  /// The steps behind the loading of a catalogue and a cycle of two lines.
  std::vector<std::string> playLoaded(std::string_view steps) {
    return play("SetXMLStrings @catalogue.xml @cycle.xml\n" + std::string(steps));
  }
  /// That the last of the steps is refused: nothing but its error is written, and nothing behind it is run.
  void expectRefused(std::string_view steps) {
    const std::string before = "SetXMLStrings @catalogue.xml @cycle.xml\n" + std::string(steps) + "\n";
    const auto line = std::count(before.begin(), before.end(), '\n');
    EXPECT_THAT(play(before + "show atoms\n"),
                ElementsAre(AllOf(StartsWith("{\"error\":\""), EndsWith("\",\"line\":" + std::to_string(line) + "}"))))
        << steps;
    EXPECT_FALSE(allRan_) << steps;
  }

  Folder folder_;
  std::ostringstream output_;
  bool allRan_ = true;
  libxml2::Libxml2DocumentFactory xml_;
  memory::MemoryMessageBox messageBox_{[this](std::string_view text, std::string_view title, int flags) {
    writeLine(output_, messageBoxLine(text, title, flags));
  }};
  memory::StandardSystemMessage systemMessage_;
  memory::Utf8CodePage codePage_;
  memory::StandingClock clock_{"2024-03-09T14:05:00"};
  MemoryDriver driver_{{xml_, messageBox_, systemMessage_, codePage_, clock_},
                       [this](const CycleEditorErrorEvent& event) { writeLine(output_, asLine(event)); }};
};

TEST_F(PlayerTest, StepsOfTheHostWriteNothingOfTheirOwn) {
  EXPECT_THAT(playLoaded("SetConfigXML \"<Config/>\"\nIgnore_Hidden true\nIgnore_Hidden false\nResetCycle \"\"\n"),
              IsEmpty());
  EXPECT_TRUE(allRan_);
}

TEST_F(PlayerTest, StepsOfTheUserWriteNothingOfTheirOwn) {
  EXPECT_THAT(playLoaded("choose cboAtom \"MIX\"\nedit GrdAtom 1 \"7\"\nchoose GrdAtom 2 \"fast\"\n"
                         "type txtCycleDescription \"x\"\nselect lstAtomSequence 1\ndblclick lstAtomSequence 0\n"
                         "select lstAtomSequence -1\nselect lstVariables 0\nclick cmdInset\ntick\n"),
              IsEmpty());
  EXPECT_TRUE(allRan_);
}

TEST_F(PlayerTest, AnUnknownStepEndsTheScenario) {
  expectRefused("dance");
  expectRefused("Show atoms");
  expectRefused("\"show\" atoms extra");
}

TEST_F(PlayerTest, WordsTooManyOrTooFewAreRefused) {
  expectRefused("tick now");
  expectRefused("show");
  expectRefused("show atoms lstVariables");
  expectRefused("SetXMLStrings \"\"");
  expectRefused("SetXMLStrings \"\" \"\" \"\"");
  expectRefused("SetConfigXML");
  expectRefused("CycleChanged true");
  expectRefused("RetrieveCycle now");
  expectRefused("Ignore_Hidden");
  expectRefused("edit GrdAtom 1");
  expectRefused("select lstAtomSequence");
  expectRefused("select lstAtomSequence 0 1");
  expectRefused("click");
}

TEST_F(PlayerTest, NumbersThatAreNoneAreRefused) {
  for (const char* number : {"x", "1x", "1.0", "--1", "\"1x\"", "99999999999999999999"}) {
    expectRefused("select lstAtomSequence "s + number);
    expectRefused("edit GrdAtom "s + number + " \"1\"");
  }
}

TEST_F(PlayerTest, ABareWordIsNoText) {
  expectRefused("SetConfigXML config");
  expectRefused("choose cboAtom MIX");
  expectRefused("edit GrdAtom 1 7");
}

TEST_F(PlayerTest, IgnoreHiddenIsTrueOrFalse) { expectRefused("Ignore_Hidden perhaps"); }

TEST_F(PlayerTest, ALineThatIsNoStepEndsTheScenario) {
  expectRefused("type txtCycleDescription \"open");
  expectRefused("SetConfigXML @missing.xml");
}

TEST_F(PlayerTest, UnknownControlsAreRefused) {
  expectRefused("show lstNothing");
  expectRefused("select lstNothing 0");
  expectRefused("select cboAtom 0");
  expectRefused("dblclick GrdAtom 0");
  expectRefused("click cmdNothing");
  expectRefused("choose cboNothing \"MIX\"");
  expectRefused("edit GrdNothing 1 \"1\"");
  expectRefused("type txtNothing \"1\"");
}

TEST_F(PlayerTest, RowsThatTheGridLacksAreRefused) {
  for (const char* row : {"0", "-1", "3"}) {
    expectRefused("edit GrdAtom "s + row + " \"1\"");
    expectRefused("choose GrdAtom "s + row + " \"fast\"");
  }
}

TEST_F(PlayerTest, ItemsThatAreNotOfferedAreRefused) {
  expectRefused("choose cboAtom \"NOTHING\"");
  expectRefused("choose cboAtom \"mix\"");
  expectRefused("choose GrdAtom 2 \"medium\"");
  expectRefused("choose GrdAtom 1 \"5\"");
}

TEST_F(PlayerTest, IndexesBeyondTheListAreRefused) {
  expectRefused("select lstAtomSequence 2");
  expectRefused("select lstAtomSequence -2");
  expectRefused("select lstVariables 1");
  expectRefused("dblclick lstAtomSequence 2");
  expectRefused("dblclick lstAtomSequence -1");
}

TEST_F(PlayerTest, ControlsInADisabledFrameAreRefused) {
  for (const char* step :
       {"choose cboAtom \"MIX\"", "edit GrdAtom 1 \"1\"", "choose GrdAtom 2 \"fast\"", "type txtCycleDescription \"x\"",
        "select lstAtomSequence 0", "dblclick lstAtomSequence 0", "select lstVariables 0", "click cmdInset",
        "click cmdReplace", "click cmdDelete", "click cmdDefault"}) {
    const std::vector<std::string> lines =
        play("SetXMLStrings @catalogue.xml @cycle.xml\nSetXMLStrings \"\" \"\"\n"s + step + "\nshow atoms\n");
    ASSERT_THAT(lines, SizeIs(2)) << step;
    EXPECT_THAT(lines[0], StartsWith("{\"CycleEditorError\":")) << step;
    EXPECT_THAT(lines[1], AllOf(StartsWith("{\"error\":\""), EndsWith("\",\"line\":3}"))) << step;
  }
}

TEST_F(PlayerTest, ShowingADisabledScreenIsAllowed) {
  const std::vector<std::string> lines = play("SetXMLStrings \"\" \"\"\nshow fraCyclePart\nshow fraDescription\n");
  ASSERT_THAT(lines, SizeIs(3));
  EXPECT_EQ(lines[1], R"({"fraCyclePart":{"caption":"Cycle","enabled":false}})");
  EXPECT_EQ(lines[2], R"({"fraDescription":{"caption":"Description","enabled":false}})");
}

TEST_F(PlayerTest, TheTickOfATimerThatIsOffDoesNothing) {
  EXPECT_THAT(play("tick\ntick\n"), IsEmpty());
  EXPECT_TRUE(allRan_);
}

TEST_F(PlayerTest, ErrorEventsStandWhereTheyHappen) {
  const std::vector<std::string> lines = play("CycleChanged\nSetXMLStrings \"\" \"\"\nCycleChanged\n");
  ASSERT_THAT(lines, SizeIs(3));
  EXPECT_EQ(lines[0], R"({"CycleChanged":false})");
  EXPECT_THAT(lines[1], StartsWith(R"({"CycleEditorError":{"lngError":-2147220991,"strError":"The 'latest_kam.xml' is )"
                                   R"(empty or doesn't exist!","strApplication":"mavCycEdVersion: 1.3.70",)"
                                   R"("strModule":"ctlCycEd","strProcedure":"SetXMLStrings ","intLineNumber":)"));
  EXPECT_EQ(lines[2], R"({"CycleChanged":false})");
}

TEST_F(PlayerTest, AnErrorEventIsOneLine) {
  std::ostringstream output;
  writeLine(output, asLine({.lngError = 9,
                            .strError = "Größe \"x\"\r\n",
                            .strApplication = "a",
                            .strModule = "m",
                            .strProcedure = "p ",
                            .intLineNumber = -1}));
  EXPECT_EQ(output.str(),
            "{\"CycleEditorError\":{\"lngError\":9,\"strError\":\"Größe \\\"x\\\"\\r\\n\",\"strApplication\":\"a\","
            "\"strModule\":\"m\",\"strProcedure\":\"p \",\"intLineNumber\":-1}}\n");
}

TEST_F(PlayerTest, AMessageBoxIsOneLine) {
  std::ostringstream output;
  writeLine(output, messageBoxLine("two\r\nlines", "title", 48));
  EXPECT_EQ(output.str(), "{\"MessageBox\":{\"text\":\"two\\r\\nlines\",\"title\":\"title\",\"flags\":48}}\n");
}

TEST_F(PlayerTest, TheQuestionsOfTheHostAreWritten) {
  const std::vector<std::string> lines = playLoaded("RetrieveCycle\nCycleChanged\n");
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_THAT(lines[0], AllOf(StartsWith("{\"RetrieveCycle\":\"<CYCLE Created=\\\"2024-03-09T14:05:00\\\""),
                              HasSubstr("//Größe")));
  EXPECT_EQ(lines[1], R"({"CycleChanged":false})");
}

TEST_F(PlayerTest, ListsAreShownWithItemsAndIndex) {
  EXPECT_THAT(playLoaded("show lstAtomSequence\nshow lstVariables\nselect lstAtomSequence 1\nshow lstAtomSequence\n"),
              ElementsAre(R"({"lstAtomSequence":{"items":["01 MIX","02 WAIT"],"index":0}})",
                          R"({"lstVariables":{"items":["Vol(ml);1;0;9"],"index":-1}})",
                          R"({"lstAtomSequence":{"items":["01 MIX","02 WAIT"],"index":1}})"));
}

TEST_F(PlayerTest, ThePickerIsShownWithItemsTextAndIndex) {
  EXPECT_THAT(playLoaded("show cboAtom\n"),
              ElementsAre(R"({"cboAtom":{"items":["MIX","WAIT","REPEAT","END"],"text":"MIX","index":0}})"));
}

TEST_F(PlayerTest, TheDescriptionIsShownWithItsText) {
  EXPECT_THAT(
      playLoaded("show txtCycleDescription\ntype txtCycleDescription \"a\\nb\"\nshow txtCycleDescription\n"),
      ElementsAre(R"({"txtCycleDescription":{"text":"Größe"}})", R"({"txtCycleDescription":{"text":"a\r\nb"}})"));
}

TEST_F(PlayerTest, EveryFrameIsShownWithCaption) {
  EXPECT_THAT(playLoaded("show fraCyclePart\nshow fraDescription\nshow fraAtom\nshow fraVariables\n"
                         "show fraSelectedMacro\n"),
              ElementsAre(R"({"fraCyclePart":{"caption":"Cycle","enabled":true}})",
                          R"({"fraDescription":{"caption":"Description","enabled":true}})",
                          R"({"fraAtom":{"caption":"Atom Sequence","enabled":true}})",
                          R"({"fraVariables":{"caption":"Cycle Variables","enabled":true}})",
                          R"({"fraSelectedMacro":{"caption":"Selected Atom","enabled":true}})"));
}

TEST_F(PlayerTest, TheGridIsShownWithTitlesRowsAndCurrentRow) {
  EXPECT_THAT(playLoaded("show GrdAtom\n"),
              ElementsAre(R"({"GrdAtom":{"titles":["Parameter","Value"],"rows":[)"
                          R"({"key":"Volume","value":"5","items":[]},)"
                          R"({"key":"Mode","value":"slow","items":["slow","fast"]}],"row":1}})"));
}

TEST_F(PlayerTest, TheTimerIsShown) {
  EXPECT_THAT(play("show tmrUpdateGrid\nSetXMLStrings @catalogue.xml @cycle.xml\nshow tmrUpdateGrid\ntick\n"
                   "show tmrUpdateGrid\n"),
              ElementsAre(R"({"tmrUpdateGrid":{"enabled":false,"interval":0}})",
                          R"({"tmrUpdateGrid":{"enabled":true,"interval":500}})",
                          R"({"tmrUpdateGrid":{"enabled":false,"interval":500}})"));
}

TEST_F(PlayerTest, AtomLinesAreShownWithTheirFourProperties) {
  EXPECT_THAT(
      playLoaded("show atoms\n"),
      ElementsAre(R"({"atoms":[{"AtomName":"MIX","AtomParameters":"Volume;5\rMode;slow","Duration":"",)"
                  R"("GroupIndex":""},{"AtomName":"WAIT","AtomParameters":"","Duration":"","GroupIndex":""}]})"));
}

TEST_F(PlayerTest, TheStateIsShown) {
  EXPECT_THAT(playLoaded("show state\ntype txtCycleDescription \"x\"\nshow state\n"),
              ElementsAre(R"({"state":{"changed":false,"gridReady":true,"currentRow":1}})",
                          R"({"state":{"changed":true,"gridReady":true,"currentRow":1}})"));
}

TEST_F(PlayerTest, RowFactsAreShownForTheParameterRows) {
  EXPECT_THAT(playLoaded("show rows\n"),
              ElementsAre(R"({"rows":[{"Lower":0.5,"Upper":100,"Value":100,"Step":1,"Factor":1,"Default":100,)"
                          R"("ExtraValues":"","Description":"Range: 0.5 to 100 Default: 100 Step: 1","Items":"",)"
                          R"("Unit":"None","IsNumeric":1},{"Lower":"","Upper":"","Value":"fast","Step":"","Factor":1,)"
                          R"("Default":"","ExtraValues":"","Description":"slow;fast","Items":"slow;fast","Unit":"",)"
                          R"("IsNumeric":0}]})"));
}

TEST_F(PlayerTest, WithoutParametersThereAreNoRows) {
  EXPECT_THAT(playLoaded("choose cboAtom \"WAIT\"\nshow rows\nshow GrdAtom\n"),
              ElementsAre(R"({"rows":[]})", R"({"GrdAtom":{"titles":["Parameter","Value"],"rows":[],"row":0}})"));
}

}  // namespace
}  // namespace mavCycEd::play
