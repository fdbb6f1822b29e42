// Texts that were made to hurt. Each ends in an error that the host sees or in a loaded cycle, and soon: where the time
// or the memory grew with the square of the text, these tests would run for hours or out of memory.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "TestDocuments.h"
#include "TestEditor.h"

namespace mavCycEd {
namespace {

using test::catalogueOf;
using test::cycleOf;
using test::element;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

std::string repeated(std::string_view text, std::size_t times) {
  std::string result;
  result.reserve(text.size() * times);
  for (std::size_t i = 0; i < times; ++i) result += text;
  return result;
}

class HostileText : public ::testing::Test {
 protected:
  memory::MemoryScreen& screen() { return editor_.screen(); }
  EditorControl& control() { return editor_.control(); }
  // What any host does with a cycle that was loaded.
  void useCycle() {
    control().CycleChanged();
    const std::string cycle = control().RetrieveCycle();
    EXPECT_FALSE(control().CycleChanged());
    control().MacroString();
    control().ResetCycle(cycle);
  }
  void expectNoCatalogue() {
    ASSERT_THAT(editor_.errors, Not(IsEmpty()));
    EXPECT_EQ(editor_.errors.front().lngError, mavCycEdErrorInvalidXML);
    EXPECT_FALSE(screen().fraCyclePart.isEnabled());
  }
  void expectNewCycle() {
    EXPECT_THAT(editor_.errors, IsEmpty());
    EXPECT_EQ(control().atoms().Count(), 0);
    EXPECT_EQ(control().RetrieveCycle(), "");
  }
  test::TestEditor editor_;
};

constexpr std::size_t large = 100'000'000;

TEST_F(HostileText, AHundredMegabytesOfOneLineAreNoCycle) {
  editor_.load(catalogueOf({"A"}), std::string(large, 'x'));
  expectNewCycle();
}

TEST_F(HostileText, AHundredMegabytesOfOneLineAreNoCatalogue) {
  editor_.load(std::string(large, '<'));
  expectNoCatalogue();
}

TEST_F(HostileText, MegabytesInOneNameAreAnAtomLine) {
  constexpr std::size_t size = 10'000'000;
  editor_.load(catalogueOf({"A"}), cycleOf({std::string(size, 'x')}));
  EXPECT_EQ(control().atoms().Item(1).AtomName().size(), size);
  EXPECT_GT(control().RetrieveCycle().size(), 2 * size);
}

TEST_F(HostileText, AMillionVariablesAreLoaded) {
  constexpr int count = 1'000'000;
  editor_.load(test::catalogueWith({"P;1;9;1;1;None"}),
               "<CYCLE><VARIABLES>" + repeated("<VALUE>V ();1;0;9</VALUE>", count) +
                   "</VARIABLES><ATOMSEQUENCE><ATOMS><ATOM><ATOMNAME>ATOM</ATOMNAME><PARAMETERS/></ATOM></ATOMS>"
                   "</ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>");
  EXPECT_EQ(screen().lstVariables.itemCount(), count);
  useCycle();
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(HostileText, DeepNestingIsRefusedOrLoaded) {
  const std::string deep = repeated("<a>", 100'000) + repeated("</a>", 100'000);
  editor_.load(deep, deep);
  editor_.load(catalogueOf({"A"}), "<CYCLE><VARIABLES>" + deep + "</VARIABLES></CYCLE>");
  control().SetConfigXML(deep);
  editor_.errors.clear();
  editor_.load(catalogueOf({"A"}), cycleOf({"A"}));
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(HostileText, EntitiesAreNeitherExpandedNorFetched) {
  std::string bomb = "<!DOCTYPE CYCLE [<!ENTITY e0 'x'>";
  for (int i = 1; i < 30; ++i) {
    const std::string before = "&e" + std::to_string(i - 1) + ";";
    bomb += "<!ENTITY e" + std::to_string(i) + " '" + repeated(before, 10) + "'>";
  }
  bomb += "]>";
  const std::string external = "<!DOCTYPE CYCLE [<!ENTITY x SYSTEM 'file:///etc/hostname'>]>";
  for (const std::string& type : {bomb, external}) {
    editor_.errors.clear();
    editor_.load(catalogueOf({"A"}), type + "<CYCLE><VARIABLES><VALUE>&x;&e29;</VALUE></VARIABLES></CYCLE>");
    expectNewCycle();
    editor_.load(type + catalogueOf({"A"}));
    expectNoCatalogue();
  }
}

TEST_F(HostileText, BytesThatAreNoTextAreRefused) {
  using namespace std::string_literals;
  const std::string bytes[] = {"\0"s,      "\xED\xA0\x80", "\xED\xBF\xBF", "\xC3", "\xFF\xFE", "\xF8\x88\x80\x80\x80",
                               "\xC0\x80", "\xEF\xBF\xBF", "\x01"};
  for (const std::string& each : bytes) {
    editor_.errors.clear();
    editor_.load(catalogueOf({"A" + each}));
    expectNoCatalogue();
    editor_.errors.clear();
    editor_.load(catalogueOf({"A"}), cycleOf({"A" + each}));
    expectNewCycle();
    // A macro text takes what comes; what is handed back can be loaded.
    editor_.load(catalogueOf({"A", "B"}),
                 "[PMA]\r\n//" + each + "\r\nV" + each + ";1\r\nB_(" + each + "," + each + ")");
    const std::string cycle = control().RetrieveCycle();
    if (cycle.empty()) continue;  // such bytes spoil the hand-back as markup does
    editor_.load(catalogueOf({"A", "B"}), cycle);
    EXPECT_EQ(control().RetrieveCycle(), cycle);
    EXPECT_THAT(editor_.errors, IsEmpty());
  }
}

TEST_F(HostileText, NumbersOutOfAllBoundsAreBorne) {
  const std::string numbers[] = {
      "1e400", "-1e400", "nan", "inf", "0x10", "4294967296", "-1", "0", "", "1e-400", "99999999999999999999"};
  for (const std::string& number : numbers) {
    std::string definitions;
    test::Catalogue catalogue;
    catalogue.atoms = {{"N",
                        {"A;" + number + ";" + number + ";" + number + ";" + number + ";u", "#L;0;0;" + number + ";7",
                         "#M;0;0;0;" + number, "O;TRAY;" + number}}};
    catalogue.lists = {{"7", "a;b"}, {number, "c;d"}};
    control().SetConfigXML("<Config><Units><UNIT><UNITNAME>u</UNITNAME><FACTOR>" + number +
                           "</FACTOR></UNIT></Units></Config>");
    editor_.load(xmlOf(catalogue), cycleOf({"N", "N"}));
    for (const std::string& value : numbers) {
      screen().GrdAtom.type(1, value);
      editor_.insert();
    }
    useCycle();
    EXPECT_GE(control().atoms().Count(), 2) << number;
  }
}

TEST_F(HostileText, ThirtyThousandOpenBlocksTakeNoGigabyte) {
  editor_.load(catalogueOf({"A"}), "[PMA]\r\n" + repeated("REPEAT(1)\r\n", 30'000));
  EXPECT_EQ(screen().lstAtomSequence.itemCount(), 30'000);
  EXPECT_EQ(screen().lstAtomSequence.itemText(29'999).size(), 5U + 32'767U + 6U);
  useCycle();
}

TEST_F(HostileText, ACatalogueOfAHundredThousandAtomsIsLoadedAndItsDialogOpened) {
  constexpr int count = 100'000;
  std::string atoms;
  for (int i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    atoms += "<ATOM><AtomName>A" + number + "</AtomName><Param>P;1;9;1;1;u" + number + "</Param></ATOM>";
  }
  editor_.load("<LATESTKAM><ATOMS>" + atoms + "</ATOMS></LATESTKAM>", cycleOf({"A0", "A99999"}));
  EXPECT_EQ(screen().cboAtom.itemCount(), count + 2);
  int units = 0;
  screen().variableDialogs.setUser([&](auto& dialog) { units = dialog.cboUnit.itemCount(); });
  screen().cmdIns.press();
  EXPECT_EQ(units, count);
  EXPECT_THAT(editor_.errors, IsEmpty());
}

TEST_F(HostileText, AConfigurationOfAHundredThousandArgumentsIsOffered) {
  constexpr int count = 100'000;
  std::string arguments;
  std::string units;
  for (int i = 0; i < count; ++i) {
    arguments += "<A>x" + std::to_string(i) + "</A>";
    units += "<UNIT><UNITNAME>u" + std::to_string(i) + "</UNITNAME></UNIT>";
  }
  control().SetConfigXML("<Config><Arguments><OBJECT><OBJECTNAME>FREE TEXT</OBJECTNAME>" + arguments +
                         "</OBJECT></Arguments><Units>" + units + "</Units></Config>");
  editor_.load(test::catalogueWith({"P;TRAY;None", "Q;1;9;1;1;None"}), cycleOf({"ATOM"}));
  EXPECT_THAT(editor_.pickList(1), SizeIs(count));
  EXPECT_GE(screen().mnuSubParam.itemCount(), count);
  std::size_t offered = 0;
  screen().variableDialogs.setUser([&](auto& dialog) {
    dialog.cboUnit.leave();
    offered = dialog.mnuSyrConstant.visibleCaptions().size();
  });
  screen().cmdIns.press();
  EXPECT_GE(offered, std::size_t{count});
}

TEST_F(HostileText, AMacroTextOfAHundredThousandLinesIsLoaded) {
  constexpr std::size_t half = 50'000;
  editor_.load(test::catalogueWith({"P;1;9;1;1;ml", "Q;1;9;1;1;None"}),
               "[PMA]\r\n" + repeated("V (s);1;0;9\r\n", half) + repeated("ATOM(1,2)\r\n", half));
  EXPECT_EQ(screen().lstAtomSequence.itemCount(), static_cast<int>(half));
}

}  // namespace
}  // namespace mavCycEd
