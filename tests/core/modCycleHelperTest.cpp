#include "catalogue/modCycleHelper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "TestDocuments.h"
#include "TestPlatform.h"
#include "memory/MemoryOptionButton.h"
#include "memory/MemoryValueList.h"
#include "panels/DialogSetup.h"

namespace mavCycEd {
namespace {

using test::catalogueWith;
using test::element;
using test::errorNumberOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class modCycleHelperTest : public ::testing::Test {
 protected:
  void setCatalogue(std::string_view xml) { helper_.setCatalogue(test::parsed(xml)); }
  void setClasses(const std::string& classes) { setCatalogue(element("LATESTKAM", element("CLASSES", classes))); }
  void setClassNames(const std::vector<std::string>& names) {
    std::string classes;
    for (const std::string& name : names) classes += element("CLASS", element("CLASSName", name));
    setClasses(classes);
  }
  void setLists(const std::vector<std::pair<std::string, std::string>>& lists) {
    test::Catalogue catalogue;
    catalogue.lists = lists;
    setCatalogue(xmlOf(catalogue));
  }
  ValueList syringesOf(std::string_view classValue, ValueList list = {}) {
    helper_.appendSyringes(classValue, list);
    return list;
  }
  ValueList valuesOf(std::string_view classValue, ValueList list = {}) {
    helper_.appendObjectValues(classValue, list);
    return list;
  }

  libxml2::Libxml2DocumentFactory xml_;
  modCycleHelper helper_{xml_};
};

TEST_F(modCycleHelperTest, WithoutACatalogueEveryAnswerIsEmpty) {
  EXPECT_EQ(helper_.atoms().length(), 0);
  EXPECT_THAT(helper_.atomNames(), IsEmpty());
  EXPECT_FALSE(helper_.atom("MIX"));
  EXPECT_TRUE(helper_.objectsOf({"TRAY"}).empty());
  EXPECT_EQ(helper_.classNames(), "");
  EXPECT_THAT(syringesOf("AB"), IsEmpty());
  EXPECT_EQ(helper_.namedList(1), "");
  EXPECT_EQ(helper_.standardUnits(), "");
}

TEST_F(modCycleHelperTest, AnEmptyCatalogueAnswersNothing) {
  setCatalogue("<LATESTKAM/>");
  EXPECT_EQ(helper_.atoms().length(), 0);
  EXPECT_EQ(helper_.classNames(), "");
  EXPECT_THAT(syringesOf("AB"), IsEmpty());
  EXPECT_EQ(helper_.namedList(1), "");
  EXPECT_EQ(helper_.standardUnits(), "");
  EXPECT_THAT(valuesOf("AB"), ElementsAre("user_index"));
}

TEST_F(modCycleHelperTest, AtomsAreKnownByTheNameThatThePickerShows) {
  setCatalogue(test::catalogueOf({"MIX!", "!WAIT", "MIX"}));
  EXPECT_EQ(helper_.atoms().length(), 3);
  EXPECT_THAT(helper_.atomNames(), ElementsAre("MIX", "WAIT", "MIX"));
  EXPECT_EQ(helper_.atom("MIX").firstChild().text(), "MIX!") << "the first of them";
  EXPECT_EQ(helper_.atom("WAIT").firstChild().text(), "!WAIT");
  EXPECT_FALSE(helper_.atom("wait"));
  EXPECT_FALSE(helper_.atom("MIX!"));
}

TEST_F(modCycleHelperTest, ClassNamesAreJoined) {
  setClassNames({"AB", "C"});
  EXPECT_EQ(helper_.classNames(), "AB;C");
  setClassNames({"A", "B"});
  EXPECT_EQ(helper_.classNames(), "A;B");
  setClassNames({"SYRINGE"});
  EXPECT_EQ(helper_.classNames(), "SYRINGE");
}

TEST_F(modCycleHelperTest, ASingleClassOfOneCharacterKeepsTheSeparatorInFront) {
  setClassNames({"A"});
  EXPECT_EQ(helper_.classNames(), ";A");
  setClassNames({"Ö"});
  EXPECT_EQ(helper_.classNames(), ";Ö") << "one character, though two bytes";
  setClassNames({"AB"});
  EXPECT_EQ(helper_.classNames(), "AB");
}

TEST_F(modCycleHelperTest, EmptyClassNamesAreSkipped) {
  setClassNames({"", "AB", "", "CD"});
  EXPECT_EQ(helper_.classNames(), "AB;CD");
  setClasses("<CLASS/><CLASS><Other>x</Other></CLASS><CLASS><CLASSName>AB</CLASSName></CLASS>");
  EXPECT_EQ(helper_.classNames(), "AB");
  setClassNames({""});
  EXPECT_EQ(helper_.classNames(), "");
}

constexpr std::string_view syringes =
    "<CLASS><CLASSName>RACK</CLASSName><S>wrong;RA</S></CLASS>"
    "<CLASS><Name>SYRINGE</Name><S>Fast;x;AB</S><S>Slow;CD</S><S>Clean;A,B</S><S>AB</S></CLASS>"
    "<CLASS><Name>SYRINGE</Name><S>Late;AB</S><S>Late;EF</S></CLASS>";

TEST_F(modCycleHelperTest, SyringesOfAClassAreAppended) {
  setClasses(std::string(syringes));
  EXPECT_THAT(syringesOf("AB", {"zero"}), ElementsAre("zero", "SYR.Fast", "SYR.Clean", "SYR.AB"));
  EXPECT_THAT(syringesOf("CD"), ElementsAre("SYR.Slow"));
}

TEST_F(modCycleHelperTest, SyringesOfOtherClassesAreNot) {
  setClasses(std::string(syringes));
  EXPECT_THAT(syringesOf("ab"), IsEmpty());
  EXPECT_THAT(syringesOf("x"), IsEmpty()) << "only the last field names the class";
  EXPECT_THAT(syringesOf("A,B"), IsEmpty()) << "the field is cleaned, the class is not";
}

TEST_F(modCycleHelperTest, OnlyTheFirstSyringeClassIsRead) {
  setClasses(std::string(syringes));
  EXPECT_THAT(syringesOf("EF"), IsEmpty());
  EXPECT_THAT(syringesOf("RA"), IsEmpty());
}

TEST_F(modCycleHelperTest, TheSyringeClassIsKnownByItsFirstChild) {
  setClasses(
      "<CLASS><Other>x</Other><CLASSName>SYRINGE</CLASSName><S>a;AB</S></CLASS>"
      "<CLASS><Name>Syringe</Name><S>b;AB</S></CLASS>"
      "<CLASS><Anything>SYRINGE</Anything><S>c;AB</S></CLASS>");
  EXPECT_THAT(syringesOf("AB"), ElementsAre("SYR.c"));
}

TEST_F(modCycleHelperTest, ASyringeIsAppendedAgainOnASecondRun) {
  setClasses(std::string(syringes));
  EXPECT_THAT(syringesOf("CD", syringesOf("CD")), ElementsAre("SYR.Slow", "SYR.Slow"));
}

TEST_F(modCycleHelperTest, ASyringeThatTheListHoldsBareIsNotAppended) {
  setClasses(std::string(syringes));
  EXPECT_THAT(syringesOf("AB", {"Fast"}), ElementsAre("Fast", "SYR.Clean", "SYR.AB"));
}

TEST_F(modCycleHelperTest, ValuesOfAnObjectComeInOrder) {
  setClasses(std::string(syringes));
  helper_.configuration().setText(
      "<Config><Arguments>"
      "<OBJECT><OBJECTNAME>AB</OBJECTNAME><A>own</A></OBJECT>"
      "<OBJECT><OBJECTNAME>None</OBJECTNAME><A>nothing</A></OBJECT>"
      "<OBJECT><OBJECTNAME>FREE TEXT</OBJECTNAME><A>free</A></OBJECT>"
      "</Arguments></Config>");
  EXPECT_THAT(valuesOf("AB", {"zero"}),
              ElementsAre("zero", "user_index", "free", "own", "SYR.Fast", "SYR.Clean", "SYR.AB"));
}

TEST_F(modCycleHelperTest, TheClassNoneHasNoUserIndex) {
  helper_.configuration().setText(
      "<Config><Arguments><OBJECT><OBJECTNAME>None</OBJECTNAME><A>nothing</A></OBJECT>"
      "<OBJECT><OBJECTNAME>FREE TEXT</OBJECTNAME><A>free</A></OBJECT></Arguments></Config>");
  EXPECT_THAT(valuesOf("None"), ElementsAre("free", "nothing"));
  EXPECT_THAT(valuesOf("none"), ElementsAre("user_index", "free"));
}

TEST_F(modCycleHelperTest, NamedListsAreFoundByTheirNumber) {
  setLists({{"1", "a;b"}, {"07", "c;d;"}, {"7", "later"}, {" 2.0 ", "e"}, {"1e1", ""}});
  EXPECT_EQ(helper_.namedList(1), "a;b");
  EXPECT_EQ(helper_.namedList(7), "c;d;") << "the first of this number, as it stands";
  EXPECT_EQ(helper_.namedList(2), "e");
  EXPECT_EQ(helper_.namedList(10), "");
  EXPECT_EQ(helper_.namedList(3), "");
}

TEST_F(modCycleHelperTest, AListWithoutEntriesIsEmpty) {
  setCatalogue("<LATESTKAM><LISTS><LIST><N>1</N></LIST></LISTS></LATESTKAM>");
  EXPECT_EQ(helper_.namedList(1), "");
}

TEST_F(modCycleHelperTest, AListNumberThatIsNoneIsAnErrorOnTheWay) {
  setLists({{"1", "a"}, {"two", "b"}, {"3", "c"}});
  EXPECT_EQ(helper_.namedList(1), "a") << "not met";
  EXPECT_EQ(errorNumberOf([&] { helper_.namedList(3); }), 13);
  EXPECT_EQ(errorNumberOf([&] { helper_.namedList(4); }), 13);
  setLists({{"", "a"}, {"1", "b"}});
  EXPECT_EQ(errorNumberOf([&] { helper_.namedList(1); }), 13);
  setLists({{"1 ml", "a"}});
  EXPECT_EQ(errorNumberOf([&] { helper_.namedList(1); }), 13);
}

TEST_F(modCycleHelperTest, StandardUnitsAreTheLastFieldsOfTheDefinitions) {
  setCatalogue(catalogueWith({"Volume;0;100;1;1;µl", "Time;0;9;1;1;s", "Volume 2;0;9;1;1;µl", "Rate;None"}));
  EXPECT_EQ(helper_.standardUnits(), "µl;s;µl;None;");
}

TEST_F(modCycleHelperTest, NumbersAndObjectNamesAreNoUnits) {
  setCatalogue(catalogueWith({"List;0;9;1;1;7", "Tray;TRAY", "Tray;A;B", "Speed;1;2;1;0.5", "Length;1;2;1;1;mm"}));
  EXPECT_EQ(helper_.standardUnits(), "B;mm;") << "a single capital is no object name";
}

TEST_F(modCycleHelperTest, ADefinitionWithoutSeparatorCountsAsTheOneBefore) {
  test::Catalogue catalogue;
  catalogue.atoms = {{"A", {"Volume;1;ml", "bare"}}, {"B", {"bare", "Time;s", "bare", "bare"}}};
  setCatalogue(xmlOf(catalogue));
  EXPECT_EQ(helper_.standardUnits(), "ml;ml;ml;s;s;s;");
}

TEST_F(modCycleHelperTest, AFirstDefinitionWithoutSeparatorFails) {
  setCatalogue(catalogueWith({"bare", "Time;s"}));
  EXPECT_EQ(errorNumberOf([&] { helper_.standardUnits(); }), 9);
}

TEST_F(modCycleHelperTest, AtomsWithoutDefinitionsHaveNoUnits) {
  setCatalogue(test::catalogueOf({"A;B", "C"}));
  EXPECT_EQ(helper_.standardUnits(), "") << "the first child is the name";
}

class VariableTypeTest : public ::testing::Test {
 protected:
  VariableTypeTest() { memory::MemoryOptionButton::group({&optObjValue_, &optNrValue_}); }

  memory::MemoryOptionButton optObjValue_{nullptr};
  memory::MemoryOptionButton optNrValue_{nullptr};
};

TEST_F(VariableTypeTest, AnObjectNameInTheSecondFieldSelectsTheObjectOption) {
  optNrValue_.select();
  selectVariableType("Rack;TRAY;9", optObjValue_, optNrValue_);
  EXPECT_TRUE(optObjValue_.value());
  EXPECT_FALSE(optNrValue_.value());
}

TEST_F(VariableTypeTest, AnotherSecondFieldSelectsTheNumericOption) {
  for (const char* definition : {"Vol;ml;1;0;9", "Vol;", "Vol;X", "Vol;TRAY2", "TRAY;ml"}) {
    optObjValue_.select();
    selectVariableType(definition, optObjValue_, optNrValue_);
    EXPECT_TRUE(optNrValue_.value()) << definition;
    EXPECT_FALSE(optObjValue_.value()) << definition;
  }
}

TEST_F(VariableTypeTest, ADefinitionWithoutSeparatorChangesNothing) {
  for (const char* definition : {"TRAY", "ml", ""}) {
    selectVariableType(definition, optObjValue_, optNrValue_);
    EXPECT_FALSE(optObjValue_.value()) << definition;
    EXPECT_FALSE(optNrValue_.value()) << definition;
  }
}

/// A grid that remembers what is done to it, and may have no current row.
class WatchedGrid : public memory::MemoryValueList {
 public:
  WatchedGrid() : MemoryValueList(nullptr) {}
  int Row() const override { return withoutCurrentRow ? 0 : MemoryValueList::Row(); }
  void DeleteRow(int row) override {
    steps.push_back("delete " + std::to_string(row));
    MemoryValueList::DeleteRow(row);
  }
  void setValue(int column, int row, std::string_view text) override {
    steps.push_back("write " + std::to_string(column) + "," + std::to_string(row) + " '" + std::string(text) + "'");
    MemoryValueList::setValue(column, row, text);
  }
  void fill(int rows) {
    for (int row = 1; row <= rows; ++row) InsertRow("key", "value", true);
  }
  bool withoutCurrentRow = false;
  std::vector<std::string> steps;
};

TEST(ResetGrid, EmptiesAGridOfSeveralRows) {
  for (int rows = 2; rows <= 5; ++rows) {
    WatchedGrid grid;
    grid.fill(rows);
    resetGrid(grid);
    EXPECT_EQ(grid.RowCount(), 1) << rows;
  }
}

TEST(ResetGrid, DeletesFromTheLastRowButOneDownAndEmptiesTheLastOneLeft) {
  WatchedGrid grid;
  grid.fill(3);
  resetGrid(grid);
  EXPECT_THAT(grid.steps, ElementsAre("delete 2", "delete 1", "write 1,1 ''", "delete 1"));
}

TEST(ResetGrid, OnlyEmptiesAndDeletesASingleRow) {
  WatchedGrid grid;
  grid.fill(1);
  resetGrid(grid);
  EXPECT_THAT(grid.steps, ElementsAre("write 1,1 ''", "delete 1"));
  EXPECT_EQ(grid.RowCount(), 1);
}

TEST(ResetGrid, DeletesOneRowOnlyWhenNoRowIsCurrent) {
  WatchedGrid grid;
  grid.fill(3);
  grid.withoutCurrentRow = true;
  resetGrid(grid);
  EXPECT_THAT(grid.steps, ElementsAre("write 1,1 ''", "delete 1"));
  EXPECT_EQ(grid.RowCount(), 3);
}

TEST(ResetGrid, LeavesAnEmptyGridEmpty) {
  WatchedGrid grid;
  resetGrid(grid);
  EXPECT_EQ(grid.RowCount(), 1);
  EXPECT_EQ(grid.Row(), 0);
}

}  // namespace
}  // namespace mavCycEd
